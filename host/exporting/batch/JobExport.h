// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "exporting/Export.h"
#include "exporting/batch/JobJournal.h"

#include <QString>

namespace LumetraHost {

/// Writes the files of jobs so that each can be done any number of times: the file carries the
/// fingerprint of its job (see JobFingerprint), and where it cannot, the journal beside it names
/// it. Who is killed at any moment and starts again finds every file whole or not at all, and
/// knows which ones are done. Usable from several threads.
class JobExport
{
public:
    /// Ways to treat a file that is there.
    enum class Existing
    {
        Replace,          ///< whatever it is; nothing is written into the journal
        KeepDone,         ///< keep what the job would write; anything else is an exception
        KeepDoneOrReplace ///< keep what the job would write; replace anything else
    };

    enum class Outcome
    {
        Written,
        Kept, ///< the file is what the job would write
        Cancelled
    };

    struct Job
    {
        QString photo;
        QString output;
        ExportRecipe recipe; ///< with look, records and format
        Existing existing = Existing::Replace;
        /// The message when a file is there that may not be replaced; without its name.
        QString refusal = {};
    };

    /// Creates, keeps or replaces the output, and makes its folder. `warnings` grows. Exceptions as
    /// from Export::Run(), from JobJournal, and for a refusal.
    Outcome Run(const Job& job, const ExportControl& control, Warnings& warnings) const;

    /// Tells what Run() would do, and writes nothing: Written, Kept, or the exception for a
    /// refusal. Reads the photo only where a file is there.
    Outcome Check(const Job& job) const;

private:
    Outcome Settle(const Job& job, const std::string& fingerprint) const;
    void Write(const Job& job, const std::string& fingerprint, const Bytes& file) const;

    JobJournal m_journal;
};

} // namespace LumetraHost
