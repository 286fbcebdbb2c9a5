// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace LumetraBench {

/// Runs measured side by side: every round runs each once, so that other work of the machine meets
/// all of them alike. Results are medians over the rounds.
///
/// Two clocks: real time is that of a waiting user, processor time (of all threads together) the
/// cost of the work, which other programs disturb less.
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
        std::function<void()> finish;
        std::vector<double> milliseconds[ClockCount]; ///< one for each round
    };

    /// `prepare` and `finish`, if any, are not measured; they precede and follow each run.
    void Add(const std::string& name, std::function<void()> run, std::function<void()> prepare = {},
             std::function<void()> finish = {});

    /// Measures after one round that does not count.
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
