// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <mutex>

namespace LumetraHost {

/// Memory that several threads share by announcing how much they need. A thread that finds too
/// little waits, in the order of arrival; one that needs more than there is gets all of it, alone.
/// While a thread waits, parts that are given back go back to the system too, which takes time.
/// Usable from several threads.
class MemoryBudget
{
public:
    /// A part of the budget, given back by its destructor.
    class Share
    {
    public:
        /// Waits until `bytes` are free, or all of the budget.
        Share(MemoryBudget& budget, std::uint64_t bytes);
        Share(const Share&) = delete;
        Share& operator=(const Share&) = delete;
        ~Share();

    private:
        MemoryBudget& m_budget;
        const std::uint64_t m_bytes;
    };

    explicit MemoryBudget(std::uint64_t bytes) : m_total(bytes), m_free(bytes) {}

    /// Half of the machine's memory, in bytes.
    static std::uint64_t GetDefault();

private:
    const std::uint64_t m_total;
    std::mutex m_turn; ///< held by the thread that is next
    std::mutex m_mutex;
    std::condition_variable m_given;
    std::uint64_t m_free;
    std::atomic<int> m_waiting{0}; ///< threads
};

} // namespace LumetraHost
