// SPDX-License-Identifier: GPL-2.0-or-later
#include "threads/ThreadPool.h"

#include <algorithm>
#include <atomic>
#include <exception>

namespace LumetraHost {

struct ThreadPool::Loop
{
    Loop(int stepCount, const std::function<void(int)>& body) : count(stepCount), step(body) {}

    void Run()
    {
        for (int i = next++; i < count; i = next++)
            try {
                step(i);
            } catch (...) {
                const std::lock_guard lock(mutex);
                if (!error)
                    error = std::current_exception();
                next = count;
            }
    }

    void Leave()
    {
        const std::lock_guard lock(mutex);
        if (--running == 0)
            isLeft.notify_all();
    }

    void WaitForHelpers()
    {
        std::unique_lock lock(mutex);
        isLeft.wait(lock, [this] { return running == 0; });
    }

    const int count;
    const std::function<void(int)>& step;
    std::atomic<int> next{0};
    int wanted = 0; ///< helpers that may still join; guarded by the pool's mutex

    std::mutex mutex;
    std::condition_variable isLeft;
    int running = 0; ///< helpers at work
    std::exception_ptr error;
};

ThreadPool::ThreadPool(int workers)
{
    for (int i = 0; i < workers; ++i)
        m_threads.emplace_back([this] { Work(); });
}

ThreadPool::~ThreadPool()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isStopping = true;
    }
    m_hasLoops.notify_all();
    for (std::thread& thread : m_threads)
        thread.join();
}

ThreadPool& ThreadPool::GetShared()
{
    static ThreadPool pool(std::max(1, static_cast<int>(std::thread::hardware_concurrency()) - 1));
    return pool;
}

void ThreadPool::ForEach(int count, int threads, const std::function<void(int)>& step)
{
    const int limit = threads < 1 ? GetThreadCount() : std::min(threads, GetThreadCount());
    const int helpers = std::min(limit, count) - 1;
    const auto loop = std::make_shared<Loop>(count, step);
    if (helpers > 0) {
        const std::lock_guard lock(m_mutex);
        loop->wanted = helpers;
        m_loops.push_back(loop);
    }
    for (int i = 0; i < helpers; ++i)
        m_hasLoops.notify_one();
    loop->Run();
    if (helpers > 0) {
        // After this no thread joins any more: the step belongs to the caller.
        const std::lock_guard lock(m_mutex);
        m_loops.erase(std::remove(m_loops.begin(), m_loops.end(), loop), m_loops.end());
    }
    loop->WaitForHelpers();
    if (loop->error)
        std::rethrow_exception(loop->error);
}

void ThreadPool::Work()
{
    while (const auto loop = TakeLoop()) {
        loop->Run();
        loop->Leave();
    }
}

std::shared_ptr<ThreadPool::Loop> ThreadPool::TakeLoop()
{
    std::unique_lock lock(m_mutex);
    m_hasLoops.wait(lock, [this] { return m_isStopping || !m_loops.empty(); });
    if (m_isStopping)
        return nullptr;
    const auto loop = m_loops.front();
    {
        const std::lock_guard loopLock(loop->mutex);
        ++loop->running;
    }
    if (--loop->wanted == 0)
        m_loops.pop_front();
    return loop;
}

} // namespace LumetraHost
