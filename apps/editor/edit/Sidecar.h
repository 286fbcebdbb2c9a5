// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "edit/BackgroundThread.h"
#include "edits/EditState.h"
#include "edits/PhotoIdentity.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <atomic>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

namespace LumetraEditor {

class EditWriter;

/// Keeps the edit of the photo that is shown in its file, see EditWriter. Written beside the GUI
/// thread; of several states in a row the last one is written.
class Sidecar : public QObject
{
    Q_OBJECT

public:
    explicit Sidecar(QObject* parent = nullptr);
    /// Waits until everything is written.
    ~Sidecar() override;

    /// From now on the sidecar of this photo: its edit, see EditSearch; nothing when there is none
    /// or, after problem(), when it cannot be read. Waits until the earlier one is written.
    std::optional<LumetraHost::EditState> Open(const QString& photo,
                                               const LumetraHost::PhotoIdentity& identity);
    /// The edit that was found was made for another file under the photo's name. The first write
    /// makes it an edit of this photo.
    bool IsOfOtherPhoto() const { return m_isOfOtherPhoto; }
    /// Gives up the edit that was found; its file stays as it is until the next write, and is set
    /// aside then.
    void StartAnew();

    /// For the photo opened last.
    void Write(const LumetraHost::EditState& state);
    /// Returns when everything is written and reported.
    void Flush();
    /// False after a write has failed at both places, until one succeeds or another photo is
    /// opened.
    bool IsSafe() const { return m_problem.isEmpty(); }
    /// Why the edit is not safe.
    QString GetProblem() const { return m_problem; }

signals:
    /// An edit of this photo has been written, at either place.
    void written(const QString& photo);
    /// A sentence with the file's name.
    void problem(const QString& message);
    /// A sentence about files elsewhere, which counts for other photos too.
    void notice(const QString& message);

private:
    struct Job;

    void ReportAll();
    void Report(const Job& job);
    void ReportKeptElsewhere(const Job& job);

    std::shared_ptr<EditWriter> m_writer; ///< of the photo opened last; only the jobs write
    bool m_isOfOtherPhoto = false;
    QString m_problem;
    QStringList m_toldFolders; ///< those of which the user knows that they cannot be written
    std::mutex m_mutex;        ///< guards m_done
    std::vector<std::shared_ptr<const Job>> m_done;
    std::atomic<int> m_newest{0};
    BackgroundThread m_thread;
};

} // namespace LumetraEditor
