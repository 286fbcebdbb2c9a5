// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/MemoryBudget.h"

#include <algorithm>

#include <unistd.h>

namespace LumetraHost {

MemoryBudget::Share::Share(MemoryBudget& budget, std::uint64_t bytes)
    : m_budget(budget), m_bytes(std::min(bytes, budget.m_total))
{
    // Threads that need less do not pass, or a large photo would wait for the end of the batch.
    const std::lock_guard turn(budget.m_turn);
    std::unique_lock lock(budget.m_mutex);
    budget.m_given.wait(lock, [this] { return m_budget.m_free >= m_bytes; });
    budget.m_free -= m_bytes;
}

MemoryBudget::Share::~Share()
{
    {
        const std::lock_guard lock(m_budget.m_mutex);
        m_budget.m_free += m_bytes;
    }
    m_budget.m_given.notify_all();
}

std::uint64_t MemoryBudget::GetDefault()
{
    const long pages = sysconf(_SC_PHYS_PAGES);
    const long pageSize = sysconf(_SC_PAGESIZE);
    constexpr std::uint64_t usual = std::uint64_t{2} << 30; // of a system that does not say
    if (pages <= 0 || pageSize <= 0)
        return usual;
    return static_cast<std::uint64_t>(pages) * static_cast<std::uint64_t>(pageSize) / 2;
}

} // namespace LumetraHost
