// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace LumetraHost {

/// Threads that stay, for loops whose steps are independent of each other. Several threads may run
/// loops at the same time; a step must not run a loop of its own on the same pool.
class ThreadPool
{
public:
    /// `workers`: threads beside the calling one, at least 0.
    explicit ThreadPool(int workers);
    ~ThreadPool();
    ThreadPool(const ThreadPool&) = delete;
    ThreadPool& operator=(const ThreadPool&) = delete;

    /// One for the process: as many threads as the processor runs, the calling one included.
    static ThreadPool& GetShared();

    /// The most threads that a loop can use, the calling one included.
    int GetThreadCount() const { return static_cast<int>(m_threads.size()) + 1; }

    /// Calls step(0) to step(count - 1), each once, in any order, on up to `threads` threads (below
    /// 1: all) of which the caller is one; returns when all are done. Steps are taken from a common
    /// counter. The first exception of a step stops the loop and is thrown here.
    void ForEach(int count, int threads, const std::function<void(int)>& step);

private:
    struct Loop;

    void Work();
    std::shared_ptr<Loop> TakeLoop();

    std::mutex m_mutex;
    std::condition_variable m_hasLoops;
    std::deque<std::shared_ptr<Loop>> m_loops;
    bool m_isStopping = false;
    std::vector<std::thread> m_threads;
};

} // namespace LumetraHost
