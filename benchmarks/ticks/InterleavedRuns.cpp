// SPDX-License-Identifier: GPL-2.0-or-later
#include "InterleavedRuns.h"

#include <algorithm>
#include <chrono>
#include <stdexcept>
#include <utility>

namespace LumetraBench {
namespace {

using Clock = std::chrono::steady_clock;

double MeasureOnce(const std::function<void()>& run)
{
    const auto begin = Clock::now();
    run();
    return std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
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
    m_runs.push_back({name, std::move(run), {}});
    m_prepare.push_back(std::move(prepare));
}

void InterleavedRuns::Measure(int rounds)
{
    for (int round = -1; round < rounds; ++round)
        for (std::size_t i = 0; i < m_runs.size(); ++i) {
            if (m_prepare[i])
                m_prepare[i]();
            const double time = MeasureOnce(m_runs[i].run);
            if (round >= 0)
                m_runs[i].milliseconds.push_back(time);
        }
}

double InterleavedRuns::GetMedian(const std::string& name) const
{
    return TakeMedian(Find(name).milliseconds);
}

double InterleavedRuns::GetFastest(const std::string& name) const
{
    const auto& times = Find(name).milliseconds;
    return *std::min_element(times.begin(), times.end());
}

double InterleavedRuns::GetRatio(const std::string& name, const std::string& reference) const
{
    const auto& times = Find(name).milliseconds;
    const auto& references = Find(reference).milliseconds;
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
