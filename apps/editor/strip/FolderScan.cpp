// SPDX-License-Identifier: GPL-2.0-or-later
#include "strip/FolderScan.h"

#include "photo/file/PhotoFolder.h"
#include "photo/metadata/PhotoOrigin.h"
#include "userdata/EditPlaces.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QSet>

#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace LumetraEditor {
namespace {

/// Photos of one portion: few enough that putting them into a list takes the GUI thread no more
/// than a few milliseconds.
constexpr std::size_t PortionSize = 128;

} // namespace

/// One scan. It is worked on by the thread, and reports through `deliver`.
struct FolderScan::Job
{
    PhotoSources sources;
    std::optional<KnownTimes> times; ///< empty: capture times are not asked for
    int number = 0;
    std::function<bool()> isCancelled;
    std::function<void(const std::vector<FoundPhoto>&)> deliver;
    QStringList problems;
    QSet<QString> listed;
    std::vector<FoundPhoto> portion;

    void ListAll()
    {
        for (const QString& file : sources.files)
            List(QFileInfo(file));
        for (const QString& folder : sources.folders)
            ListFolder(folder);
        deliver(std::exchange(portion, {}));
    }

    void ListFolder(const QString& folder)
    {
        if (!QFileInfo(folder).isDir() || !QDir(folder).isReadable())
            problems.append(FolderScan::tr("The folder “%1” cannot be read.").arg(folder));
        QDirIterator files(folder, QDir::Files);
        while (files.hasNext() && !isCancelled()) {
            files.next();
            if (LumetraHost::PhotoFolder::IsPhotoName(files.fileName()))
                List(files.fileInfo());
        }
    }

    void List(const QFileInfo& file)
    {
        const QString path = file.absoluteFilePath();
        if (isCancelled() || listed.contains(path))
            return;
        listed.insert(path);
        FoundPhoto photo{path,
                         file.lastModified(),
                         QFileInfo(LumetraHost::EditPlaces::GetBeside(path)).lastModified(),
                         {}};
        if (times)
            photo.captured = FindTime(photo);
        portion.push_back(std::move(photo));
        if (portion.size() >= PortionSize)
            deliver(std::exchange(portion, {}));
    }

    QDateTime FindTime(const FoundPhoto& photo) const
    {
        const auto known = times->constFind(photo.path);
        if (known != times->constEnd() && known->modified == photo.modified)
            return known->captured;
        return LumetraHost::PhotoOrigin::ReadTime(photo.path);
    }
};

FolderScan::FolderScan(QObject* parent) : QObject(parent) {}

FolderScan::~FolderScan()
{
    Cancel();
}

void FolderScan::Start(const PhotoSources& sources)
{
    const auto job = std::make_shared<Job>();
    job->sources = sources;
    Run(job);
}

void FolderScan::StartWithTimes(const PhotoSources& sources, const KnownTimes& known)
{
    const auto job = std::make_shared<Job>();
    job->sources = sources;
    job->times = known;
    Run(job);
}

void FolderScan::Cancel()
{
    ++m_newest;
    m_isRunning = false;
}

void FolderScan::Run(const std::shared_ptr<Job>& job)
{
    const int number = ++m_newest;
    m_isRunning = true;
    job->number = number;
    job->isCancelled = [this, number] { return number != m_newest; };
    job->deliver = [this, number](const std::vector<FoundPhoto>& photos) {
        QMetaObject::invokeMethod(
            this, [this, number, photos] { Deliver(number, photos); }, Qt::QueuedConnection);
    };
    m_thread.Run([job] { job->ListAll(); }, [this, job] { End(*job); });
}

void FolderScan::Deliver(int number, const std::vector<FoundPhoto>& photos)
{
    if (number == m_newest && !photos.empty())
        emit found(photos);
}

void FolderScan::End(const Job& job)
{
    if (job.number != m_newest)
        return;
    m_isRunning = false;
    emit ended(job.problems);
}

} // namespace LumetraEditor
