// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/batch/JobExport.h"

#include "exporting/JobFingerprint.h"
#include "photo/PhotoReader.h"
#include "storage/CheckedFileWriter.h"
#include "storage/FailWith.h"

#include <QFileInfo>

#include <string>

namespace LumetraHost {

/// The outcome as far as it depends on the file that is there.
JobExport::Outcome JobExport::Settle(const Job& job, const std::string& fingerprint) const
{
    if (job.existing == Existing::Replace || !QFileInfo::exists(job.output))
        return Outcome::Written;
    const bool isDone =
        !fingerprint.empty() && (m_journal.IsDone(job.output, fingerprint) ||
                                 JobFingerprint::ReadFrom(job.output) == fingerprint);
    if (isDone)
        return Outcome::Kept;
    if (job.existing == Existing::KeepDone)
        FailWith((job.output + QStringLiteral(": ") + job.refusal).toStdString());
    return Outcome::Written;
}

JobExport::Outcome JobExport::Check(const Job& job) const
{
    if (job.existing == Existing::Replace || !QFileInfo::exists(job.output))
        return Outcome::Written;
    return Settle(job, JobFingerprint::Of(PhotoReader::ReadContent(job.photo), job.recipe));
}

JobExport::Outcome JobExport::Run(const Job& job, const ExportControl& control,
                                  Warnings& warnings) const
{
    const std::string target = job.output.toStdString();
    job.recipe.Check(target);
    const Bytes photo = PhotoReader::ReadContent(job.photo);
    ExportRecipe recipe = job.recipe;
    recipe.job = JobFingerprint::Of(photo, recipe);
    if (Settle(job, recipe.job) == Outcome::Kept)
        return Outcome::Kept;
    const auto result =
        Export().MakeFromFile(photo, job.photo.toStdString(), recipe, target, control);
    for (const Warnings& noticed : {result.damage, result.losses})
        for (const std::string& warning : noticed)
            Warn(warnings, warning);
    if (result.file.empty())
        return Outcome::Cancelled;
    Write(job, recipe.job, result.file);
    return Outcome::Written;
}

void JobExport::Write(const Job& job, const std::string& fingerprint, const Bytes& file) const
{
    CheckedFileWriter::MakeFolder(QFileInfo(job.output).absolutePath());
    const bool isJournalled = job.existing != Existing::Replace && !fingerprint.empty() &&
                              JobFingerprint::ReadFrom(file) != fingerprint;
    if (isJournalled)
        m_journal.Add(job.output, fingerprint, file);
    CheckedFileWriter::Write(job.output, file.data(), file.size());
}

} // namespace LumetraHost
