// SPDX-License-Identifier: GPL-2.0-or-later
#include "edit/Sidecar.h"

#include "edit/EditWriter.h"
#include "edits/EditSearch.h"
#include "userdata/EditPlaces.h"

#include <QDir>
#include <QFileInfo>

namespace LumetraEditor {

using LumetraHost::EditSearch;
using LumetraHost::EditState;
using LumetraHost::PhotoIdentity;

namespace EditPlaces = LumetraHost::EditPlaces;

/// One state on its way to the disk.
struct Sidecar::Job
{
    std::shared_ptr<EditWriter> writer;
    EditState state;
    QDateTime saved;
    EditWriter::Outcome outcome;
};

Sidecar::Sidecar(QObject* parent) : QObject(parent) {}

Sidecar::~Sidecar()
{
    m_thread.WaitForJobs();
}

std::optional<EditState> Sidecar::Open(const QString& photo, const PhotoIdentity& identity)
{
    Flush();
    const EditSearch search(photo, identity);
    for (const QString& reason : search.GetProblems())
        emit problem(tr("The edit of the photo cannot be read and is left alone: %1").arg(reason));
    m_problem.clear();
    m_writer = std::make_shared<EditWriter>(photo, identity, search);
    const auto& found = search.GetFound();
    m_isOfOtherPhoto = found && found->isOfOtherPhoto;
    return found ? std::optional(found->edit.state) : std::nullopt;
}

void Sidecar::StartAnew()
{
    Flush();
    m_isOfOtherPhoto = false;
    m_writer->StartAnew();
}

void Sidecar::Write(const EditState& state)
{
    if (!m_writer)
        return;
    m_isOfOtherPhoto = false;
    const int number = ++m_newest;
    const auto job = std::make_shared<Job>();
    job->writer = m_writer;
    job->state = state;
    job->saved = QDateTime::currentDateTimeUtc();
    m_thread.Run(
        [this, job, number] {
            if (number != m_newest) // a newer one is already waiting
                return;
            job->outcome = job->writer->Write(job->state, job->saved);
            const std::lock_guard lock(m_mutex);
            m_done.push_back(job);
        },
        [this] { ReportAll(); });
}

void Sidecar::ReportAll()
{
    std::vector<std::shared_ptr<const Job>> done;
    {
        const std::lock_guard lock(m_mutex);
        done.swap(m_done);
    }
    for (const auto& job : done)
        Report(*job);
}

void Sidecar::Report(const Job& job)
{
    const bool isNews = IsSafe();
    const auto& [besideError, error, setAside] = job.outcome;
    if (job.writer == m_writer)
        m_problem = error;
    if (error.isEmpty())
        emit written(job.writer->GetPhoto());
    if (!error.isEmpty() && isNews)
        emit problem(tr("The edit of “%1” cannot be kept.")
                         .arg(QFileInfo(job.writer->GetPhoto()).fileName()) +
                     QLatin1Char('\n') + error);
    if (!besideError.isEmpty() && error.isEmpty())
        ReportKeptElsewhere(job);
    if (!setAside.isEmpty())
        emit notice(tr("An earlier edit is kept as %1").arg(QFileInfo(setAside).fileName()));
}

/// Once for a folder: nothing is wrong with the other photos there.
void Sidecar::ReportKeptElsewhere(const Job& job)
{
    const QFileInfo photo(job.writer->GetPhoto());
    const QString folder = photo.absolutePath();
    if (m_toldFolders.contains(folder))
        return;
    m_toldFolders.append(folder);
    emit notice(tr("The edit of “%1” cannot be kept beside the photo. It is kept in %2.")
                    .arg(photo.fileName(), QDir::toNativeSeparators(EditPlaces::GetKeptFolder())) +
                QLatin1Char('\n') + job.outcome.besideError);
}

void Sidecar::Flush()
{
    m_thread.WaitForJobs();
    ReportAll();
}

} // namespace LumetraEditor
