// SPDX-License-Identifier: GPL-2.0-or-later
#include "InterleavedRuns.h"

#include "common/Timing.h"

#include <stdexcept>
#include <utility>

namespace LumetraBench {
namespace {

void MeasureOnce(InterleavedRuns::Run& run, bool isCounted)
{
    const double begin = GetMilliseconds(CLOCK_MONOTONIC);
    const double processorBegin = GetMilliseconds(CLOCK_PROCESS_CPUTIME_ID);
    run.run();
    const double processorEnd = GetMilliseconds(CLOCK_PROCESS_CPUTIME_ID);
    const double end = GetMilliseconds(CLOCK_MONOTONIC);
    if (!isCounted)
        return;
    run.milliseconds[InterleavedRuns::RealTime].push_back(end - begin);
    run.milliseconds[InterleavedRuns::ProcessorTime].push_back(processorEnd - processorBegin);
}

} // namespace

void InterleavedRuns::Add(const std::string& name, std::function<void()> run,
                          std::function<void()> prepare, std::function<void()> finish)
{
    m_runs.push_back({name, std::move(prepare), std::move(run), std::move(finish), {}});
}

void InterleavedRuns::Measure(int rounds)
{
    for (int round = -1; round < rounds; ++round)
        for (Run& run : m_runs) {
            if (run.prepare)
                run.prepare();
            MeasureOnce(run, round >= 0);
            if (run.finish)
                run.finish();
        }
}

double InterleavedRuns::GetMedian(const std::string& name, Clock clock) const
{
    return LumetraBench::GetMedian(Find(name).milliseconds[clock]);
}

double InterleavedRuns::GetRatio(const std::string& name, const std::string& reference,
                                 Clock clock) const
{
    const auto& times = Find(name).milliseconds[clock];
    const auto& references = Find(reference).milliseconds[clock];
    std::vector<double> ratios;
    for (std::size_t i = 0; i < times.size(); ++i)
        ratios.push_back(times[i] / references[i]);
    return LumetraBench::GetMedian(ratios);
}

const InterleavedRuns::Run& InterleavedRuns::Find(const std::string& name) const
{
    for (const Run& run : m_runs)
        if (run.name == name)
            return run;
    throw std::invalid_argument("no run is named \"" + name + "\"");
}

} // namespace LumetraBench
