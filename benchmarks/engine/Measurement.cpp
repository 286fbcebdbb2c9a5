// SPDX-License-Identifier: GPL-2.0-or-later
#include "Measurement.h"

#include "BenchmarkPictures.h"

#include "common/Pictures.h"
#include "common/Timing.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstring>
#include <utility>
#include <vector>

namespace LumetraBench {
namespace {

using namespace LumetraHost;

/// Seconds; those of the processor are summed over the process's threads.
struct Seconds
{
    double real = 0;
    double processor = 0;

    /// The time that other programs disturb least; on two threads waiting counts too.
    double Get(int threads) const { return threads > 1 ? real : processor; }
};

Seconds Now()
{
    return {1e-3 * GetMilliseconds(CLOCK_MONOTONIC),
            1e-3 * GetMilliseconds(CLOCK_PROCESS_CPUTIME_ID)};
}

void AddTime(const std::function<void()>& step, Seconds& sum)
{
    const Seconds begin = Now();
    step();
    const Seconds end = Now();
    sum.real += end.real - begin.real;
    sum.processor += end.processor - begin.processor;
}

Drawing MakeCopy(Image::Depth depth)
{
    return MakeDrawing(depth, [depth](Image& target) {
        const Image& photo = GetPhoto(depth);
        std::memcpy(target.Row(0), photo.Row(0), photo.GetByteCount());
        benchmark::ClobberMemory();
    });
}

/// The best of some copies right before a measurement.
double MeasureCopySeconds(Image::Depth depth)
{
    const Drawing copy = MakeCopy(depth);
    double best = 1e9;
    for (int round = 0; round < 3; ++round) {
        Seconds taken;
        AddTime(copy.draw, taken);
        best = std::min(best, taken.processor);
    }
    return best;
}

void CountPixels(benchmark::State& state, const Task& task, const Seconds& taken)
{
    const Image& photo = GetPhoto(task.depth);
    const double megapixels =
        1e-6 * photo.GetWidth() * photo.GetHeight() * double(state.iterations());
    state.counters["MP/s"] = megapixels / taken.Get(task.threads);
    state.counters["MP/s/core"] = megapixels / taken.processor;
}

void RunAlone(benchmark::State& state, const Task& task, const Drawing& drawing)
{
    const double copy = MeasureCopySeconds(task.depth);
    drawing.draw(); // the first drawing makes tables and buffers that are not measured
    Seconds taken;
    for (auto iteration : state)
        AddTime(drawing.draw, taken);
    CountPixels(state, task, taken);
    state.counters["per_copy"] = taken.processor / double(state.iterations()) / copy;
}

/// Runs both in turn, so that disturbances of the machine meet both; ours several times, because it
/// is quicker as a rule.
void RunBesideOurs(benchmark::State& state, const Task& task, const Drawing& peer)
{
    constexpr int ourRuns = 3;
    const Drawing ours = MakeOurs(task, GetDefaultIsa());
    ours.draw(); // the first drawing is not measured
    peer.draw();
    Seconds peerTaken;
    Seconds oursTaken;
    for (auto iteration : state) {
        state.PauseTiming();
        for (int run = 0; run < ourRuns; ++run)
            AddTime(ours.draw, oursTaken);
        state.ResumeTiming();
        AddTime(peer.draw, peerTaken);
    }
    CountPixels(state, task, peerTaken);
    state.counters["times_ours"] =
        ourRuns * peerTaken.Get(task.threads) / oursTaken.Get(task.threads);
    state.counters["PSNR"] = GetPsnr(ours.get(), peer.get());
}

/// The medians of rounds that run all sets in turn, so that what disturbs the machine disturbs all.
/// The default is drawn as the first and as one of them.
void RunBesideSets(benchmark::State& state, const Task& task)
{
    constexpr int rounds = 9;
    std::vector<Drawing> drawings = {MakeOurs(task, GetDefaultIsa())};
    for (const Isa isa : GetSupportedIsas())
        drawings.push_back(MakeOurs(task, isa));
    for (const Drawing& drawing : drawings)
        drawing.draw(); // what is made by the first drawing is not measured
    std::vector<std::vector<double>> taken(drawings.size());
    for (auto iteration : state)
        for (int round = 0; round < rounds; ++round)
            for (std::size_t i = 0; i < drawings.size(); ++i) {
                Seconds seconds;
                AddTime(drawings[i].draw, seconds);
                taken[i].push_back(seconds.Get(task.threads));
            }
    double best = 0;
    for (std::size_t i = 1; i < drawings.size(); ++i) {
        const double times = GetMedian(taken[0]) / GetMedian(taken[i]);
        state.counters[std::string("times_") + GetIsaName(GetSupportedIsas()[i - 1])] = times;
        best = std::max(best, times);
    }
    state.counters["times_best"] = best;
}

void Register(const std::string& name, int threads, std::function<void(benchmark::State&)> run)
{
    const std::string fullName = name + "/threads:" + std::to_string(threads);
    auto* const registered = benchmark::RegisterBenchmark(fullName.c_str(), std::move(run));
    registered->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();
    if (threads > 1)
        registered->UseRealTime();
}

} // namespace

void RegisterCopy(Image::Depth depth)
{
    const Task task{"copy", depth, 1};
    Register(task.GetName(), 1,
             [task](benchmark::State& state) { RunAlone(state, task, MakeCopy(task.depth)); });
}

void RegisterOurs(const Task& task, Isa isa)
{
    Register(task.GetName() + "/" + GetIsaName(isa), task.threads,
             [=](benchmark::State& state) { RunAlone(state, task, MakeOurs(task, isa)); });
}

void RegisterDefault(const Task& task)
{
    Register("default_beside_each_set_" + task.GetName(), task.threads,
             [task](benchmark::State& state) { RunBesideSets(state, task); });
}

void RegisterPeer(const std::string& peer, const Task& task, const std::string& remark,
                  std::function<Drawing(const Task&)> prepare)
{
    Register(peer + "_" + task.GetName(), task.threads,
             [task, remark, prepare = std::move(prepare)](benchmark::State& state) {
                 RunBesideOurs(state, task, prepare(task));
                 state.SetLabel(remark);
             });
}

} // namespace LumetraBench
