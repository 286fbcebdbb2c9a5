// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QObject>
#include <QThreadPool>

#include <functional>

namespace LumetraEditor {

/// One thread beside the GUI's that runs jobs in order. Its end waits for the jobs; what was to
/// follow them on the GUI thread is then dropped.
class BackgroundThread : public QObject
{
    Q_OBJECT

public:
    explicit BackgroundThread(QObject* parent = nullptr);
    ~BackgroundThread() override;

    /// Runs `work` on the thread, which must not throw, and then `finished` on the thread of this
    /// object; `finished` may be empty.
    void Run(std::function<void()> work, std::function<void()> finished);
    /// Returns when all jobs are done. What follows them on the GUI thread still waits there.
    void WaitForJobs();

private:
    QThreadPool m_pool;
};

} // namespace LumetraEditor
