// SPDX-License-Identifier: GPL-2.0-or-later
#include "OutputPlan.h"

#include "OutputTemplate.h"
#include "UsageError.h"

#include "storage/FileIdentity.h"

#include <QFileInfo>

#include <map>
#include <set>

namespace LumetraCli {
namespace {

using LumetraHost::FileIdentity;

void RefuseSharedOutputs(const std::vector<PhotoJob>& jobs)
{
    std::map<FileIdentity, QString> photoOfOutput;
    for (const PhotoJob& job : jobs) {
        const auto [first, isNew] = photoOfOutput.emplace(FileIdentity::Of(job.output), job.photo);
        if (!isNew)
            throw UsageError(
                QStringLiteral("--output: expected an output of its own for each photo, found "
                               "\"%1\" for \"%2\" and \"%3\"")
                    .arg(job.output, first->second, job.photo));
    }
}

void Fail(PhotoJob& job, const QString& message)
{
    job.state = PhotoJob::State::Failed;
    job.message = message;
}

void Decide(PhotoJob& job, const std::set<FileIdentity>& inputs, ExistingOutput existing)
{
    const QFileInfo photo(job.photo);
    if (!photo.exists())
        return Fail(job, QStringLiteral("%1: expected a photo, found no such file").arg(job.photo));
    if (photo.isDir())
        return Fail(job, QStringLiteral("%1: expected a photo, found a folder").arg(job.photo));
    if (inputs.count(FileIdentity::Of(job.output)) != 0)
        return Fail(
            job, QStringLiteral("%1: is one of the photos and is not overwritten").arg(job.output));
    if (!QFileInfo::exists(job.output))
        return;
    if (QFileInfo(job.output).isDir())
        return Fail(job,
                    QStringLiteral("%1: expected a file to write, found a folder").arg(job.output));
    if (existing == ExistingOutput::Skip)
        job.state = PhotoJob::State::Skipped;
    else if (existing == ExistingOutput::Refuse)
        Fail(job, QStringLiteral("%1: exists; --overwrite replaces it, --skip leaves it")
                      .arg(job.output));
}

} // namespace

std::vector<PhotoJob> OutputPlan::Make(const QStringList& photos, const OutputTemplate& outputs,
                                       const QString& presetName, ExistingOutput existing)
{
    std::vector<PhotoJob> jobs;
    std::set<FileIdentity> inputs;
    for (const QString& photo : photos) {
        PhotoJob job;
        job.photo = photo;
        job.output = outputs.Expand(photo, presetName);
        jobs.push_back(job);
        inputs.insert(FileIdentity::Of(photo));
    }
    RefuseSharedOutputs(jobs);
    for (PhotoJob& job : jobs)
        Decide(job, inputs, existing);
    return jobs;
}

} // namespace LumetraCli
