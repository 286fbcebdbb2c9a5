// SPDX-License-Identifier: GPL-2.0-or-later
#include "edit/Sidecar.h"

#include "edits/EditFile.h"
#include "edits/EditSearch.h"
#include "edits/KeptEdits.h"
#include "storage/CheckedFileWriter.h"
#include "storage/JsonDocument.h"
#include "userdata/BackupRotation.h"
#include "userdata/EditPlaces.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <exception>

namespace LumetraEditor {
namespace {

using LumetraHost::EditFile;
using LumetraHost::EditSearch;
using LumetraHost::EditState;
using LumetraHost::PhotoIdentity;

namespace EditPlaces = LumetraHost::EditPlaces;

const QString Unreadable = QStringLiteral("unreadable");
const QString Earlier = QStringLiteral("earlier");

/// Null where that is no file, or cannot be read.
QByteArray ReadAll(const QString& path)
{
    QFile file(path);
    const bool isOpen = QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly);
    return isOpen ? file.readAll() : QByteArray();
}

/// A file of an edit. Any program may write it at any time; what was read from it, written to it or
/// copied here may be written over.
struct Target
{
    QString path;
    QByteArray safe;              ///< content that may be written over; null: none
    QString setAsideAs = Earlier; ///< a word for the name of a copy of anything else

    /// The name of the copy that was made, empty for none.
    QString Write(const QByteArray& text)
    {
        LumetraHost::JsonDocument::CheckReadable(text, path);
        QString copy;
        if (QFileInfo(path).isFile() && !IsSafe()) {
            copy = LumetraHost::BackupRotation(path).SetAside(setAsideAs);
            safe = ReadAll(copy); // no second copy where the write fails
        }
        LumetraHost::CheckedFileWriter::Write(path, text);
        safe = text;
        setAsideAs = Earlier;
        return copy;
    }

    void RemoveSafe()
    {
        if (IsSafe())
            QFile::remove(path);
        safe.clear();
    }

    bool IsSafe() const { return !safe.isNull() && ReadAll(path) == safe; }
};

} // namespace

/// Where the edit of one photo is written. After Open() only the jobs change it, one by one.
struct Sidecar::Place
{
    QString photo;
    PhotoIdentity identity;
    Target beside;
    Target kept;
    LumetraHost::JsonValue::Object origin;
};

/// One state on its way to the disk.
struct Sidecar::Job
{
    std::shared_ptr<Place> place;
    EditFile file;
    QString besideError;
    QString error; ///< of both places
    QString setAside;

    void Write()
    {
        try {
            setAside = place->beside.Write(file.ToText());
            place->kept.RemoveSafe(); // the edit has moved to the photo
        } catch (const std::exception& problem) {
            besideError = QString::fromUtf8(problem.what());
            WriteElsewhere();
        }
    }

    void WriteElsewhere()
    {
        try {
            file.photoPath = place->photo;
            LumetraHost::CheckedFileWriter::MakeFolder(EditPlaces::GetKeptFolder());
            setAside = place->kept.Write(file.ToText());
        } catch (const std::exception& problem) {
            error = besideError + QLatin1Char('\n') + QString::fromUtf8(problem.what());
        }
    }
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
    m_place = std::make_shared<Place>();
    m_place->photo = photo;
    m_place->identity = identity;
    const auto& found = search.GetFound();
    const auto target = [&](const QString& path) {
        const bool isSource = found && found->path == path;
        return Target{path, isSource ? found->edit.text : QByteArray(),
                      search.GetUnreadable().contains(path) ? Unreadable : Earlier};
    };
    m_place->beside = target(EditPlaces::GetBeside(photo));
    m_place->kept = target(LumetraHost::KeptEdits::GetPath(photo, identity));
    m_isOfOtherPhoto = found && found->isOfOtherPhoto;
    if (!found)
        return std::nullopt;
    m_place->origin = found->edit.origin;
    return found->edit.state;
}

void Sidecar::StartAnew()
{
    Flush();
    m_isOfOtherPhoto = false;
    m_place->beside.safe.clear();
    m_place->kept.safe.clear();
    m_place->origin.reset();
}

void Sidecar::Write(const EditState& state)
{
    if (!m_place)
        return;
    m_isOfOtherPhoto = false;
    const int number = ++m_newest;
    const auto job = std::make_shared<Job>();
    job->place = m_place;
    job->file.state = state;
    job->file.photo = m_place->identity;
    job->file.saved = QDateTime::currentDateTimeUtc();
    job->file.origin = m_place->origin;
    m_thread.Run(
        [this, job, number] {
            if (number != m_newest) // a newer one is already waiting
                return;
            job->Write();
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
    if (job.place == m_place)
        m_problem = job.error;
    if (job.error.isEmpty())
        emit written(job.place->photo);
    if (!job.error.isEmpty() && isNews)
        emit problem(
            tr("The edit of “%1” cannot be kept.").arg(QFileInfo(job.place->photo).fileName()) +
            QLatin1Char('\n') + job.error);
    if (!job.besideError.isEmpty() && job.error.isEmpty())
        ReportKeptElsewhere(job);
    if (!job.setAside.isEmpty())
        emit notice(tr("An earlier edit is kept as %1").arg(QFileInfo(job.setAside).fileName()));
}

/// Once for a folder: nothing is wrong with the other photos there.
void Sidecar::ReportKeptElsewhere(const Job& job)
{
    const QString folder = QFileInfo(job.place->photo).absolutePath();
    if (m_toldFolders.contains(folder))
        return;
    m_toldFolders.append(folder);
    emit notice(tr("The edit of “%1” cannot be kept beside the photo. It is kept in %2.")
                    .arg(QFileInfo(job.place->photo).fileName(),
                         QDir::toNativeSeparators(EditPlaces::GetKeptFolder())) +
                QLatin1Char('\n') + job.besideError);
}

void Sidecar::Flush()
{
    m_thread.WaitForJobs();
    ReportAll();
}

} // namespace LumetraEditor
