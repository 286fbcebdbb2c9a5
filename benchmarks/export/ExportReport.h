// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "ChildProcess.h"

#include <QString>

#include <optional>
#include <string>
#include <vector>

namespace LumetraBench {

/// One line of the table: a command, its runs, and what it is measured beside.
struct Measured
{
    std::string name;
    std::string group; ///< "ours", "reference" or "peer"
    std::vector<std::string> words;
    std::string reference;        ///< the name of the line whose time it is divided by, or empty
    std::optional<double> target; ///< largest ratio that we want
    std::string remark;
    std::optional<double> psnr; ///< against our picture of the same case
    std::vector<ChildResult> runs;

    double GetMedianMilliseconds() const;
    double GetMedianProcessor() const;
    double GetPeak() const;
    bool IsDone() const;
};

/// Prints the table to the standard output and stores everything as JSON. `idlePeak`: megabytes of
/// our program doing nothing.
class ExportReport
{
public:
    explicit ExportReport(std::vector<Measured> lines) : m_lines(std::move(lines)) {}

    void Print(double idlePeak) const;
    /// False when it cannot be written.
    bool Store(const QString& path, double idlePeak, double loadBefore, double loadAfter) const;

private:
    std::optional<double> GetRatio(const Measured& line) const;

    std::vector<Measured> m_lines;
};

} // namespace LumetraBench
