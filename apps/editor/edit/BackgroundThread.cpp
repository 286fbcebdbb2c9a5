// SPDX-License-Identifier: GPL-2.0-or-later
#include "edit/BackgroundThread.h"

#include <utility>

namespace LumetraEditor {

BackgroundThread::BackgroundThread(QObject* parent) : QObject(parent)
{
    m_pool.setMaxThreadCount(1);
}

BackgroundThread::~BackgroundThread()
{
    m_pool.waitForDone();
}

void BackgroundThread::Run(std::function<void()> work, std::function<void()> finished)
{
    m_pool.start([this, work = std::move(work), finished = std::move(finished)] {
        work();
        if (finished)
            QMetaObject::invokeMethod(this, finished, Qt::QueuedConnection);
    });
}

void BackgroundThread::WaitForJobs()
{
    m_pool.waitForDone();
}

} // namespace LumetraEditor
