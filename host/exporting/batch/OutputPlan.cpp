// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/batch/OutputPlan.h"

#include "exporting/batch/OutputTemplate.h"

#include "storage/FileIdentity.h"
#include "userdata/EditPlaces.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>

#include <map>
#include <set>

namespace LumetraHost {
namespace {

using Jobs = std::vector<PhotoJob*>;

void Fail(PhotoJob& job, const QString& message)
{
    job.state = PhotoJob::State::Failed;
    job.message = message;
}

/// Returns the path itself when it exists, else the nearest folder above it that does.
QString FindExisting(const QString& path)
{
    QFileInfo info(path);
    while (!info.exists() && !info.isRoot())
        info.setFile(info.absolutePath());
    return info.absoluteFilePath();
}

/// True on file systems where two names that differ only in their case are one file.
bool IgnoresCase(const QString& path)
{
    static const std::set<QByteArray> types = {"vfat", "msdos", "exfat",  "cifs",
                                               "smb3", "hfs",   "hfsplus"};
    return types.count(QStorageInfo(FindExisting(path)).fileSystemType()) != 0;
}

/// A key of the output's file; outputs with equal keys would be one file.
FileIdentity GetOutputKey(const QString& output)
{
    if (QFileInfo::exists(output) || !IgnoresCase(output))
        return FileIdentity::Of(output);
    const QFileInfo info(output);
    return FileIdentity::Of(QDir(info.absolutePath()).filePath(info.fileName().toCaseFolded()));
}

/// Fails the job of a file that cannot be a photo, so that it keeps no other photo from its output.
void CheckPhoto(PhotoJob& job)
{
    const QFileInfo photo(job.photo);
    if (!photo.exists())
        Fail(job, QStringLiteral("%1: expected a photo, found no such file").arg(job.photo));
    else if (photo.isDir())
        Fail(job, QStringLiteral("%1: expected a photo, found a folder").arg(job.photo));
    else if (!photo.isFile())
        Fail(job, QStringLiteral("%1: expected a photo, found no plain file").arg(job.photo));
}

/// Skips a photo that was named before for the same output.
void SkipRepeated(const Jobs& sharing)
{
    std::map<FileIdentity, QString> names;
    for (PhotoJob* job : sharing) {
        const auto [first, isNew] = names.emplace(FileIdentity::Of(job->photo), job->photo);
        if (isNew)
            continue;
        job->state = PhotoJob::State::Skipped;
        job->message = QStringLiteral("%1: is the photo \"%2\" again, which is done once")
                           .arg(job->photo, first->second);
    }
}

/// Fails all photos that share an output: nobody can tell which one was meant.
void RefuseShared(const Jobs& sharing)
{
    Jobs different;
    for (PhotoJob* job : sharing)
        if (job->state == PhotoJob::State::Planned)
            different.push_back(job);
    if (different.size() < 2)
        return;
    const QString more = different.size() == 2
                             ? QString()
                             : QStringLiteral(" and %1 more").arg(different.size() - 2);
    for (PhotoJob* job : different) {
        const PhotoJob* other = different[job == different[0] ? 1 : 0];
        Fail(*job, QStringLiteral("%1: expected an output of its own, found \"%2\", which is that "
                                  "of \"%3\"%4 too")
                       .arg(job->photo, job->output, other->photo, more));
    }
}

void SettleSharedOutputs(std::vector<PhotoJob>& jobs)
{
    std::map<FileIdentity, Jobs> jobsOfOutput;
    for (PhotoJob& job : jobs)
        if (job.state == PhotoJob::State::Planned)
            jobsOfOutput[GetOutputKey(job.output)].push_back(&job);
    for (const auto& [output, sharing] : jobsOfOutput) {
        SkipRepeated(sharing);
        RefuseShared(sharing);
    }
}

void CheckOutput(PhotoJob& job, const std::set<FileIdentity>& inputs, const OutputRules& rules)
{
    const QFileInfo output(job.output);
    if (inputs.count(FileIdentity::Of(job.output)) != 0)
        return Fail(
            job, QStringLiteral("%1: is one of the photos and is not overwritten").arg(job.output));
    if (!output.exists())
        return;
    if (output.isDir())
        return Fail(job,
                    QStringLiteral("%1: expected a file to write, found a folder").arg(job.output));
    if (!output.isFile())
        return Fail(
            job,
            QStringLiteral("%1: expected a file to write, found no plain file").arg(job.output));
    if (rules.existing == ExistingOutput::Skip)
        job.state = PhotoJob::State::Skipped;
    else if (EditPlaces::HasEdit(job.output))
        Fail(job, QStringLiteral("%1: is a photo with an edit of its own and is not overwritten")
                      .arg(job.output));
    else if (rules.existing == ExistingOutput::Refuse)
        Fail(job, QStringLiteral("%1: exists%2").arg(job.output, rules.existingHint));
}

} // namespace

std::vector<PhotoJob> OutputPlan::Make(const QStringList& photos, const OutputTemplate& outputs,
                                       const QString& presetName, const OutputRules& rules)
{
    std::vector<PhotoJob> jobs;
    std::set<FileIdentity> inputs;
    for (const QString& photo : photos) {
        PhotoJob job;
        job.photo = photo;
        job.output = outputs.Expand(photo, presetName);
        CheckPhoto(job);
        jobs.push_back(job);
        inputs.insert(FileIdentity::Of(photo));
    }
    SettleSharedOutputs(jobs);
    for (PhotoJob& job : jobs)
        if (job.state == PhotoJob::State::Planned)
            CheckOutput(job, inputs, rules);
    return jobs;
}

} // namespace LumetraHost
