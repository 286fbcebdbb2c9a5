// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/MemoryBudget.h"

#include <algorithm>

#include <malloc.h>
#include <unistd.h>

namespace LumetraHost {
namespace {

/// Gives memory that the process has freed back to the system. The allocator keeps it in a pool per
/// thread, where other threads do not find it: with many threads as much as the budget again.
void ReturnFreeMemory()
{
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

} // namespace

MemoryBudget::Share::Share(MemoryBudget& budget, std::uint64_t bytes)
    : m_budget(budget), m_bytes(std::min(bytes, budget.m_total))
{
    // Threads that need less do not pass, or a large photo would wait for the end of the batch.
    ++budget.m_waiting;
    const std::lock_guard turn(budget.m_turn);
    std::unique_lock lock(budget.m_mutex);
    budget.m_given.wait(lock, [this] { return m_budget.m_free >= m_bytes; });
    --budget.m_waiting;
    budget.m_free -= m_bytes;
}

MemoryBudget::Share::~Share()
{
    if (m_budget.m_waiting > 0)
        ReturnFreeMemory();
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
