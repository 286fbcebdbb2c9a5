// SPDX-License-Identifier: GPL-2.0-or-later
#include "InterleavedRuns.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include <time.h>

namespace LumetraBench {
namespace {

double GetMilliseconds(clockid_t clock)
{
    timespec time{};
    clock_gettime(clock, &time);
    return 1e3 * double(time.tv_sec) + 1e-6 * double(time.tv_nsec);
}

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

double TakeMedian(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

} // namespace

void InterleavedRuns::Add(const std::string& name, std::function<void()> run,
                          std::function<void()> prepare)
{
    m_runs.push_back({name, std::move(prepare), std::move(run), {}});
}

void InterleavedRuns::Measure(int rounds)
{
    for (int round = -1; round < rounds; ++round)
        for (Run& run : m_runs) {
            if (run.prepare)
                run.prepare();
            MeasureOnce(run, round >= 0);
        }
}

double InterleavedRuns::GetMedian(const std::string& name, Clock clock) const
{
    return TakeMedian(Find(name).milliseconds[clock]);
}

double InterleavedRuns::GetRatio(const std::string& name, const std::string& reference,
                                 Clock clock) const
{
    const auto& times = Find(name).milliseconds[clock];
    const auto& references = Find(reference).milliseconds[clock];
    std::vector<double> ratios;
    for (std::size_t i = 0; i < times.size(); ++i)
        ratios.push_back(times[i] / references[i]);
    return TakeMedian(ratios);
}

const InterleavedRuns::Run& InterleavedRuns::Find(const std::string& name) const
{
    for (const Run& run : m_runs)
        if (run.name == name)
            return run;
    throw std::invalid_argument("no run is named \"" + name + "\"");
}

} // namespace LumetraBench
