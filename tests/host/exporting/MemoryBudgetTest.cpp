// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/MemoryBudget.h"

#include <gmock/gmock.h>

#include <atomic>
#include <future>
#include <thread>
#include <vector>

using LumetraHost::MemoryBudget;

namespace {

constexpr std::uint64_t Total = 100;
constexpr int Rounds = 200;

/// Lets threads ask for these amounts again and again. Returns the most that they held at the same
/// time, as far as a thread could see it.
std::uint64_t FindMost(const std::vector<std::uint64_t>& amounts)
{
    MemoryBudget budget(Total);
    std::atomic<std::uint64_t> held{0};
    std::atomic<std::uint64_t> most{0};
    const auto work = [&](std::uint64_t amount) {
        for (int round = 0; round < Rounds; ++round) {
            const MemoryBudget::Share share(budget, amount);
            const std::uint64_t now = held += amount;
            std::uint64_t seen = most;
            while (now > seen && !most.compare_exchange_weak(seen, now)) {
            }
            std::this_thread::yield();
            held -= amount;
        }
    };
    std::vector<std::future<void>> threads;
    for (const std::uint64_t amount : amounts)
        threads.push_back(std::async(std::launch::async, work, amount));
    for (auto& thread : threads)
        thread.get();
    return most;
}

TEST(MemoryBudget, isNeverExceeded)
{
    EXPECT_LE(FindMost({40, 40, 40, 30, 20, 10, 60, 70}), Total);
}

TEST(MemoryBudget, givesAllOfItToOneWhoNeedsMore)
{
    EXPECT_EQ(FindMost({1000, 1000, 30, 30}), 1000u); // alone, in all of the rounds
}

TEST(MemoryBudget, isGivenBackAndUsedAgain)
{
    MemoryBudget budget(Total);
    for (int round = 0; round < Rounds; ++round)
        const MemoryBudget::Share share(budget, Total);
}

TEST(MemoryBudget, isAPartOfTheMachinesMemory)
{
    EXPECT_GE(MemoryBudget::GetDefault(), std::uint64_t{64} << 20);
}

} // namespace
