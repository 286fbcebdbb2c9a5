// SPDX-License-Identifier: GPL-2.0-or-later
#include "edit/Sidecar.h"

#include "edit/EditStateFormat.h"
#include "storage/CheckedFileWriter.h"
#include "userdata/BackupRotation.h"

#include <QFileInfo>

#include <exception>

namespace LumetraEditor {

/// One state on its way to the disk.
struct Sidecar::Job
{
    QString path;
    EditState state;
    std::shared_ptr<std::atomic<bool>> isUnreadable;
    QString error;
    QString keptAs;

    void Write()
    {
        try {
            if (isUnreadable->load())
                keptAs = LumetraHost::BackupRotation(path).SetAside();
            isUnreadable->store(false);
            LumetraHost::CheckedFileWriter::Write(path, EditStateFormat::ToText(state));
        } catch (const std::exception& problem) {
            error = QString::fromUtf8(problem.what());
        }
    }
};

Sidecar::Sidecar(QObject* parent) : QObject(parent) {}

Sidecar::~Sidecar()
{
    Flush();
}

QString Sidecar::GetPath(const QString& photo)
{
    return photo + QStringLiteral(".lumetra.json");
}

std::optional<EditState> Sidecar::Open(const QString& photo)
{
    Flush();
    m_path = GetPath(photo);
    m_isSafe = true;
    m_isUnreadable = std::make_shared<std::atomic<bool>>(false);
    const QFileInfo file(m_path);
    if (!file.exists() && !file.isSymLink())
        return std::nullopt;
    try {
        return EditStateFormat::FromDocument(LumetraHost::JsonDocument::Read(m_path));
    } catch (const std::exception& error) {
        m_isUnreadable->store(true);
        emit problem(tr("The edit kept beside the photo cannot be read and is left alone: %1")
                         .arg(QString::fromUtf8(error.what())));
        return std::nullopt;
    }
}

void Sidecar::Write(const EditState& state)
{
    const int number = ++m_newest;
    const auto job = std::make_shared<Job>();
    job->path = m_path;
    job->state = state;
    job->isUnreadable = m_isUnreadable;
    m_thread.Run(
        [this, job, number] {
            if (number == m_newest) // a newer one is already waiting otherwise
                job->Write();
        },
        [this, job] { Report(*job); });
}

void Sidecar::Report(const Job& job)
{
    if (job.path == m_path && m_isSafe != job.error.isEmpty()) {
        m_isSafe = job.error.isEmpty();
        if (!m_isSafe)
            emit problem(tr("The edit cannot be kept beside the photo: %1").arg(job.error));
    }
    if (!job.keptAs.isEmpty())
        emit problem(tr("The edit that could not be read is kept as %1")
                         .arg(QFileInfo(job.keptAs).fileName()));
}

void Sidecar::Flush()
{
    m_thread.WaitForJobs();
}

} // namespace LumetraEditor
