// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "ChildProcess.h"

#include <QJsonObject>
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
    std::string reference;         ///< the name of the line whose time it is divided by, or empty
    std::optional<double> target;  ///< largest ratio that we want
    std::optional<double> atLeast; ///< of a peer: smallest ratio that we want
    int mostRuns = 5;
    std::string remark;
    std::optional<double> psnr; ///< against our picture of the same case
    std::vector<ChildResult> runs;

    double GetMedianMilliseconds() const;
    double GetMedianProcessor() const;
    double GetPeak() const;
    bool IsDone() const;
};

/// Prints the table to the standard output and stores everything as JSON.
class ExportReport
{
public:
    explicit ExportReport(std::vector<Measured> lines) : m_lines(std::move(lines)) {}

    void Print() const;
    /// Stores the cases and, beside them, `machine`. False when the file cannot be written.
    bool Store(const QString& path, QJsonObject machine) const;

private:
    std::optional<double> GetRatio(const Measured& line) const;
    void PrintLine(const Measured& line) const;

    std::vector<Measured> m_lines;
};

} // namespace LumetraBench
