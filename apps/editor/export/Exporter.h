// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "edit/BackgroundThread.h"
#include "export/ExportJob.h"

#include <QObject>
#include <QStringList>

#include <memory>

namespace LumetraEditor {

/// Runs one export at a time beside the GUI thread.
class Exporter : public QObject
{
    Q_OBJECT

public:
    explicit Exporter(QObject* parent = nullptr);
    /// Cancels a running export and waits for it.
    ~Exporter() override;

    /// Starts an export, which ends with exactly one of finished(), failed() and cancelled(). None
    /// may be running.
    void Start(std::shared_ptr<ExportJob> job);
    bool IsRunning() const { return m_job != nullptr; }

public slots:
    void Cancel();

signals:
    void progressed(int percent);
    /// `warnings` name, in English, the parts of the photo that the file lacks.
    void finished(const QString& path, const QStringList& warnings);
    /// `message` names the file.
    void failed(const QString& message);
    void cancelled();

private:
    struct Outcome;

    void End(const Outcome& outcome);

    std::shared_ptr<ExportJob> m_job;
    BackgroundThread m_thread;
};

} // namespace LumetraEditor
