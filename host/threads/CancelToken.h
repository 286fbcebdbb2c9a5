// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <atomic>

namespace LumetraHost {

/// Lets another thread give up a rendering that nobody waits for any more. Owned by the caller of
/// the rendering, who keeps it until that has returned.
class CancelToken
{
public:
    void Cancel() { m_isCancelled.store(true, std::memory_order_relaxed); }
    bool IsCancelled() const { return m_isCancelled.load(std::memory_order_relaxed); }

private:
    std::atomic<bool> m_isCancelled{false};
};

} // namespace LumetraHost
