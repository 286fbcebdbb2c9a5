// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "edit/BackgroundThread.h"

#include <QDateTime>
#include <QHash>
#include <QObject>
#include <QStringList>

#include <atomic>
#include <vector>

namespace LumetraEditor {

/// A photo's file as its folder tells of it. Its content has not been read.
struct FoundPhoto
{
    QString path;           ///< absolute
    QDateTime modified;     ///< invalid: the file is not there
    QDateTime editModified; ///< of the edit's file beside the photo; invalid: there is none
    QDateTime captured;     ///< from the photo itself; invalid: not asked for, or not told
};

/// The place of photos that are listed together.
struct PhotoSources
{
    QStringList files;   ///< listed whether they are there or not
    QStringList folders; ///< their photos, without those of folders inside
};

/// Lists photos beside the GUI thread and delivers them in portions, so that a window shows the
/// first ones of a large or distant folder at once. One scan at a time: another one cancels it.
class FolderScan : public QObject
{
    Q_OBJECT

public:
    /// Photos of which the capture time is known, by path. A file that has changed since is asked
    /// again.
    using KnownTimes = QHash<QString, FoundPhoto>;

    explicit FolderScan(QObject* parent = nullptr);
    ~FolderScan() override;

    /// Begins to list the photos; ends with ended(), unless it is cancelled.
    void Start(const PhotoSources& sources);
    /// Lists the photos with the times at which they were taken, which opens each file.
    void StartWithTimes(const PhotoSources& sources, const KnownTimes& known);
    /// No signal comes any more.
    void Cancel();
    bool IsRunning() const { return m_isRunning; }

signals:
    /// A portion of the photos, in no order. No photo comes twice.
    void found(const std::vector<LumetraEditor::FoundPhoto>& photos);
    /// All photos have been found. The sentences name the folders that cannot be read.
    void ended(const QStringList& problems);

private:
    struct Job;

    void Run(const std::shared_ptr<Job>& job);
    void Deliver(int number, const std::vector<FoundPhoto>& photos);
    void End(const Job& job);

    std::atomic<int> m_newest{0};
    bool m_isRunning = false;
    BackgroundThread m_thread;
};

} // namespace LumetraEditor
