// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "drawer/view/LiveViewOptions.h"

#include "threads/CancelToken.h"

#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace LumetraHost {

/// Watches the renderings of a live view and holds them while it is closed.
class RenderGate
{
public:
    struct Seen
    {
        quint64 serial;
        bool isReduced;
        std::thread::id thread;
    };

    std::function<void(const ViewRendering&)> GetHook()
    {
        return [this](const ViewRendering& rendering) { Pass(rendering); };
    }

    void Close() { SetOpen(false); }
    void Open() { SetOpen(true); }
    /// Lets the rendering at the closed gate go on, and holds the next one.
    void LetOnePass()
    {
        const std::lock_guard lock(m_mutex);
        ++m_permits;
        m_changed.notify_all();
    }

    /// Waits until a rendering of that serial, or a later one, stands at the closed gate.
    void WaitForArrival(quint64 serial)
    {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [&] { return m_waitingSerial >= serial; });
    }

    /// True when the rendering at the gate has been cancelled.
    bool IsWaitingOneCancelled()
    {
        const std::lock_guard lock(m_mutex);
        return m_waitingToken && m_waitingToken->IsCancelled();
    }

    std::vector<Seen> GetSeen()
    {
        const std::lock_guard lock(m_mutex);
        return m_seen;
    }

private:
    void SetOpen(bool isOpen)
    {
        const std::lock_guard lock(m_mutex);
        m_isOpen = isOpen;
        m_changed.notify_all();
    }

    void Pass(const ViewRendering& rendering)
    {
        std::unique_lock lock(m_mutex);
        m_seen.push_back({rendering.serial, rendering.isReduced, std::this_thread::get_id()});
        m_waitingSerial = rendering.serial;
        m_waitingToken = &rendering.cancel;
        m_changed.notify_all();
        m_changed.wait(lock, [this] { return m_isOpen || m_permits > 0; });
        m_permits -= m_isOpen ? 0 : 1;
        m_waitingToken = nullptr;
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_isOpen = true;
    int m_permits = 0;
    quint64 m_waitingSerial = 0;
    const CancelToken* m_waitingToken = nullptr;
    std::vector<Seen> m_seen;
};

} // namespace LumetraHost
