// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "edit/BackgroundThread.h"
#include "edit/EditChanges.h"
#include "edit/ManyStates.h"

#include <QByteArray>
#include <QHash>
#include <QObject>
#include <QString>
#include <QStringList>

#include <condition_variable>
#include <deque>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <vector>

namespace LumetraEditor {

class FiledEdit;

/// Direction of a step that changes photos' edits.
enum class ManyDirection
{
    Do,     ///< for the first time
    Back,   ///< undo
    Forward ///< redo
};

/// Holds what a step has made of its photos.
struct ManyReport
{
    ManyDirection direction = ManyDirection::Do;
    int changed = 0;
    int same = 0;         ///< photos that were like that before, or that the step had left out
    int cancelled = 0;    ///< photos that are as they were since the user has stopped the step
    QStringList problems; ///< a sentence with the photo's name for each other one that is as it was
    QStringList notices;  ///< sentences about files elsewhere
};

/// Changes the edits of photos that are not shown, in their files, beside the GUI thread and in the
/// order in which it was asked. The changes that wait for one photo are made together and written
/// once. A photo whose edit cannot be read, or is that of another file, is left as it is and
/// reported. The photo that is shown must not be given; its edit is in the drawer. Ends with all
/// changes made.
class ManyEdits : public QObject
{
    Q_OBJECT

public:
    explicit ManyEdits(QObject* parent = nullptr);
    ~ManyEdits() override;

    /// Changes the photos and enters into `states` what they were and are. `begun` counts what has
    /// been done elsewhere. Each call ends with finished().
    void Do(const std::shared_ptr<ManyStates>& states, const QStringList& photos,
            const EditChange& change, const ManyReport& begun = {});
    /// Brings the edits back that are entered as those before the step, or as those after it. A
    /// photo is left as it is where something else has changed its edit meanwhile, and where
    /// nothing is entered for it.
    void Return(const std::shared_ptr<ManyStates>& states, const QStringList& photos,
                const ManyReport& begun);

    /// Makes the changes that wait for this photo at once; they are on the disk on return. To be
    /// called before the photo's edit is read, from any thread.
    void Settle(const QString& photo);
    /// Gives up all changes that have not begun.
    void Cancel();
    bool IsRunning() const;
    /// Returns when all changes are made and reported.
    void WaitForAll();

signals:
    /// `done` of `total` photos are done, counted since nothing was to be done.
    void progressed(int done, int total);
    /// The edit of a photo is another one on the disk.
    void editChanged(const QString& photo);
    void finished(const std::shared_ptr<LumetraEditor::ManyStates>& states,
                  const LumetraEditor::ManyReport& report);

private:
    struct Batch;
    using Batches = std::vector<std::shared_ptr<Batch>>;
    struct Result;

    void Start(const std::shared_ptr<Batch>& batch, const QStringList& photos);
    void WorkOff();
    QString TakeNext(Batches& batches);
    void Leave(const QString& photo);
    void ChangePhoto(const QString& photo, const Batches& batches);
    static QString Write(FiledEdit& file, const SharedEdit& edit, Result& result);
    Result ChangeEdit(Batch& batch, const QString& photo, SharedEdit& edit);
    Result DoChange(Batch& batch, const QString& photo, SharedEdit& edit);
    Result GoTo(Batch& batch, const QString& photo, SharedEdit& edit) const;
    void Enter(const QString& photo, const Batches& batches, const std::vector<Result>& results,
               bool isWritten);
    void CountOff(Batch& batch);
    SharedEdit Share(const LumetraHost::EditState& edit);
    void PostReports();
    void ReportAll();

    mutable std::mutex m_mutex; ///< guards what follows, up to the thread
    std::condition_variable m_isFree;
    std::deque<QString> m_order;          ///< photos that wait; some may have been settled
    std::map<QString, Batches> m_waiting; ///< by photo
    std::set<QString> m_busy;             ///< photos whose edits are being changed
    int m_done = 0;
    int m_total = 0;
    std::vector<std::shared_ptr<Batch>> m_finished;                          ///< yet to be reported
    QStringList m_changed;                                                   ///< yet to be reported
    QHash<QByteArray, std::weak_ptr<const LumetraHost::EditState>> m_shared; ///< by content
    BackgroundThread m_thread;
};

} // namespace LumetraEditor
