// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace LumetraBench {

/// Runs measured side by side: every round runs each once, so that whatever else the machine does
/// meets all of them alike. Results are medians over the rounds.
///
/// Two clocks: real time is what the user waits for, processor time (of all threads together) what
/// the work costs, which other programs disturb less.
class InterleavedRuns
{
public:
    enum Clock
    {
        RealTime,
        ProcessorTime,
        ClockCount
    };

    struct Run
    {
        std::string name;
        std::function<void()> prepare;
        std::function<void()> run;
        std::vector<double> milliseconds[ClockCount]; ///< one for each round
    };

    /// `prepare`, if any, is not measured; it precedes each run.
    void Add(const std::string& name, std::function<void()> run,
             std::function<void()> prepare = {});

    /// After one round that is not counted.
    void Measure(int rounds);

    const std::vector<Run>& GetRuns() const { return m_runs; }
    double GetMedian(const std::string& name, Clock clock) const;
    /// The median over the rounds of how many times longer `name` took than `reference`.
    double GetRatio(const std::string& name, const std::string& reference, Clock clock) const;

private:
    const Run& Find(const std::string& name) const;

    std::vector<Run> m_runs;
};

} // namespace LumetraBench
