// SPDX-License-Identifier: GPL-2.0-or-later
#include "OutputPlan.h"

#include "OutputTemplate.h"
#include "UsageError.h"

#include <QFileInfo>
#include <QMap>
#include <QSet>

namespace LumetraCli {
namespace {

/// One name for one file, also for a file that is yet to be written in an existing folder.
QString Identity(const QString& path)
{
    const QFileInfo info(path);
    const QString canonical = info.canonicalFilePath();
    if (!canonical.isEmpty())
        return canonical;
    const QString folder = QFileInfo(info.absolutePath()).canonicalFilePath();
    return folder.isEmpty() ? info.absoluteFilePath() : folder + QLatin1Char('/') + info.fileName();
}

void RefuseSharedOutputs(const std::vector<PhotoJob>& jobs)
{
    QMap<QString, QString> photoOfOutput;
    for (const PhotoJob& job : jobs) {
        const QString output = Identity(job.output);
        if (photoOfOutput.contains(output))
            throw UsageError(
                QStringLiteral("--output: expected an output of its own for each photo, found "
                               "\"%1\" for \"%2\" and \"%3\"")
                    .arg(job.output, photoOfOutput.value(output), job.photo));
        photoOfOutput.insert(output, job.photo);
    }
}

void Fail(PhotoJob& job, const QString& message)
{
    job.state = PhotoJob::State::Failed;
    job.message = message;
}

void Decide(PhotoJob& job, const QSet<QString>& inputs, ExistingOutput existing)
{
    const QFileInfo photo(job.photo);
    if (!photo.exists())
        return Fail(job, QStringLiteral("%1: expected a photo, found no such file").arg(job.photo));
    if (photo.isDir())
        return Fail(job, QStringLiteral("%1: expected a photo, found a folder").arg(job.photo));
    if (inputs.contains(Identity(job.output)))
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
    QSet<QString> inputs;
    for (const QString& photo : photos) {
        PhotoJob job;
        job.photo = photo;
        job.output = outputs.Expand(photo, presetName);
        jobs.push_back(job);
        inputs.insert(Identity(photo));
    }
    RefuseSharedOutputs(jobs);
    for (PhotoJob& job : jobs)
        Decide(job, inputs, existing);
    return jobs;
}

} // namespace LumetraCli
