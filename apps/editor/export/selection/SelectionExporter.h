// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "edit/BackgroundThread.h"
#include "export/selection/SelectionPlan.h"

#include <QObject>
#include <QStringList>

#include <memory>

namespace LumetraEditor {

/// Carries out the jobs of a plan beside the GUI thread, several at the same time. One batch at a
/// time.
class SelectionExporter : public QObject
{
    Q_OBJECT

public:
    /// `guard` is asked right before each file is made.
    explicit SelectionExporter(std::shared_ptr<const ExportGuard> guard, QObject* parent = nullptr);
    /// Cancels a running batch and waits for the photos that are being written.
    ~SelectionExporter() override;

    /// Carries out the planned jobs; the others stay as they are. Ends with ended(). None may be
    /// running.
    void Start(const SelectionPlan& plan);
    /// Carries out once more what failed while it was carried out, and what was not done.
    void TryAgain();
    bool IsRunning() const { return m_batch != nullptr; }

    /// The jobs of the last batch that ended, with their outcomes.
    const SelectionPlan& GetOutcome() const { return m_outcome; }
    /// Sentences in English about parts of photos that the written files lack, each with the name
    /// of its photo.
    const QStringList& GetWarnings() const { return m_warnings; }
    /// True when TryAgain() has something to do.
    bool HasRest() const;

public slots:
    void Cancel();

signals:
    /// `photo` has ended as the `done`th of all jobs of the batch.
    void progressed(int done, int total, const QString& photo);
    void ended();

private:
    struct Batch;

    void Run(const std::shared_ptr<Batch>& batch);
    QString FindObstacle(const LumetraHost::PhotoJob& job, bool replaces) const;
    void End(const Batch& batch);
    static bool IsRest(const LumetraHost::PhotoJob& job, bool wasPlanned);

    const std::shared_ptr<const ExportGuard> m_guard;
    std::shared_ptr<Batch> m_batch;
    SelectionPlan m_outcome;
    std::vector<bool> m_wasPlanned; ///< of each job: the plan had no objection
    QStringList m_warnings;
    BackgroundThread m_thread;
};

} // namespace LumetraEditor
