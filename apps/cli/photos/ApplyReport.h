// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "console/ExitCode.h"
#include "console/ProgressLine.h"
#include "exporting/batch/PhotoJob.h"

#include <QCommandLineParser>
#include <QString>

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace LumetraCli {

class Console;
class Interruption;
class OptionTable;

/// Tells the outcome of each job when it has ended, and of all of them at the end. On stdout: the
/// names of written (in a dry run: planned) files, or a line of JSON for each job and one for the
/// whole, see docs/apply-report.schema.json. On stderr: failures, warnings, the progress and, of
/// several jobs, a summary.
class ApplyReport
{
public:
    /// A preset that a job puts on its photo.
    struct Look
    {
        QString name; ///< in the catalogue
        QString id;
        std::optional<int> intensity; ///< none for a preset without one
    };
    /// The looks of a job, the lowest first.
    using LooksOf = std::function<std::vector<Look>(const LumetraHost::PhotoJob&)>;

    struct Form
    {
        bool isJson = false;
        /// Leaves out names, notices, progress and summary; JSON, warnings and failures stay.
        bool isQuiet = false;
        bool isDryRun = false;
        QString shard = {}; ///< "2/4": the part of the list that the jobs are; empty: all of it
        int listCount = 0;  ///< the number of jobs of the whole list, where there is a shard
    };

    /// Adds --json and --quiet.
    static void AddOptions(OptionTable& options);
    /// Reads them.
    static Form ReadForm(const QCommandLineParser& parser);

    ApplyReport(const Form& form, int jobCount, const LooksOf& looksOf, Console& console);

    void Add(const LumetraHost::PhotoJob& job, const std::vector<std::string>& warnings);
    /// Tells of all jobs. The code is that of the interruption, if there is one and it has kept
    /// jobs from being done.
    ExitCode Finish(const Interruption* interruption = nullptr);

private:
    void PrintJson(const LumetraHost::PhotoJob& job, const std::vector<std::string>& warnings);
    void PrintSummary(bool isInterrupted);
    QString MakeSummary(bool isInterrupted) const;
    int Count(LumetraHost::PhotoJob::State state) const;

    Form m_form;
    LooksOf m_looksOf;
    Console& m_console;
    ProgressLine m_progress;
    std::map<LumetraHost::PhotoJob::State, int> m_counts;
    int m_jobCount;
};

} // namespace LumetraCli
