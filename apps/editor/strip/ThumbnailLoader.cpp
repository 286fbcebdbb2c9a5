// SPDX-License-Identifier: GPL-2.0-or-later
#include "strip/ThumbnailLoader.h"

#include <algorithm>
#include <utility>

#include <sys/resource.h>

namespace LumetraEditor {
namespace {

/// A quarter of the cores: decoding is the work of one core, and the photo that is being edited
/// wants the others.
std::size_t ChooseThreadCount()
{
    return std::clamp<std::size_t>(std::thread::hardware_concurrency() / 4, 1, 4);
}

/// Lets all other threads of the process go first. On Linux the number is the calling thread's own;
/// elsewhere it would be that of the whole process, and is left alone.
void LowerPriority()
{
#ifdef __linux__
    constexpr int Nice = 10;
    ::setpriority(PRIO_PROCESS, 0, Nice);
#endif
}

} // namespace

ThumbnailLoader::ThumbnailLoader(Make make, QObject* parent)
    : QObject(parent), m_make(std::move(make))
{
    const std::size_t count = ChooseThreadCount();
    for (std::size_t i = 0; i < count; ++i)
        m_threads.emplace_back([this] { Work(); });
}

ThumbnailLoader::~ThumbnailLoader()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isStopping = true;
        for (const RunningPtr& running : m_running)
            running->cancel.Cancel();
    }
    m_hasRequests.notify_all();
    for (std::thread& thread : m_threads)
        thread.join();
}

void ThumbnailLoader::Want(std::vector<ThumbnailRequest> requests)
{
    {
        const std::lock_guard lock(m_mutex);
        for (const RunningPtr& running : m_running)
            if (!running->isDone &&
                std::find(requests.begin(), requests.end(), running->request) == requests.end())
                running->cancel.Cancel();
        requests.erase(
            std::remove_if(requests.begin(), requests.end(),
                           [this](const ThumbnailRequest& request) { return IsRunning(request); }),
            requests.end());
        std::reverse(requests.begin(), requests.end());
        m_waiting = std::move(requests);
    }
    m_hasRequests.notify_all();
}

bool ThumbnailLoader::IsRunning(const ThumbnailRequest& request) const
{
    return std::any_of(m_running.begin(), m_running.end(), [&request](const RunningPtr& running) {
        return running->request == request && !running->cancel.IsCancelled();
    });
}

void ThumbnailLoader::Work()
{
    LowerPriority();
    while (const RunningPtr running = Take()) {
        const Thumbnail thumbnail = m_make(running->request, running->cancel);
        {
            const std::lock_guard lock(m_mutex);
            running->isDone = true;
        }
        QMetaObject::invokeMethod(
            this, [this, running, thumbnail] { Deliver(running, thumbnail); },
            Qt::QueuedConnection);
    }
}

/// A request counts as running until its thumbnail is delivered, so that it is not made twice.
void ThumbnailLoader::Deliver(const RunningPtr& running, const Thumbnail& thumbnail)
{
    {
        const std::lock_guard lock(m_mutex);
        m_running.erase(std::find(m_running.begin(), m_running.end(), running));
    }
    if (!running->cancel.IsCancelled())
        emit made(thumbnail);
}

ThumbnailLoader::RunningPtr ThumbnailLoader::Take()
{
    std::unique_lock lock(m_mutex);
    m_hasRequests.wait(lock, [this] { return m_isStopping || !m_waiting.empty(); });
    if (m_isStopping)
        return nullptr;
    const auto running = std::make_shared<Running>();
    running->request = std::move(m_waiting.back());
    m_waiting.pop_back();
    m_running.push_back(running);
    return running;
}

} // namespace LumetraEditor
