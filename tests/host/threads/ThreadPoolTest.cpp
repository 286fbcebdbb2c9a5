// SPDX-License-Identifier: GPL-2.0-or-later
#include "threads/ThreadPool.h"

#include <gtest/gtest.h>

#include <atomic>
#include <numeric>
#include <stdexcept>
#include <vector>

namespace LumetraHost {
namespace {

TEST(ThreadPool, takesEveryStepOnce)
{
    ThreadPool pool(3);
    for (const int threads : {0, 1, 2, 9}) {
        std::vector<int> taken(1000, 0);
        pool.ForEach(1000, threads, [&](int i) { ++taken[static_cast<std::size_t>(i)]; });
        EXPECT_EQ(taken, std::vector<int>(1000, 1)) << threads;
    }
}

TEST(ThreadPool, runsNothingForNoSteps)
{
    ThreadPool pool(1);
    pool.ForEach(0, 0, [](int) { FAIL(); });
}

TEST(ThreadPool, worksWithoutAnyWorker)
{
    ThreadPool pool(0);
    int sum = 0;
    pool.ForEach(10, 4, [&](int i) { sum += i; });
    EXPECT_EQ(sum, 45);
    EXPECT_EQ(pool.GetThreadCount(), 1);
}

TEST(ThreadPool, throwsTheErrorOfAStepAndGoesOnWorking)
{
    ThreadPool pool(2);
    EXPECT_THROW(pool.ForEach(100, 0,
                              [](int i) {
                                  if (i == 40)
                                      throw std::runtime_error("step");
                              }),
                 std::runtime_error);
    std::atomic<int> count{0};
    pool.ForEach(50, 0, [&](int) { ++count; });
    EXPECT_EQ(count, 50);
}

TEST(ThreadPool, servesSeveralThreadsAtTheSameTime)
{
    ThreadPool pool(2);
    std::vector<std::atomic<int>> sums(4);
    std::vector<std::thread> callers;
    for (std::size_t caller = 0; caller < sums.size(); ++caller)
        callers.emplace_back([&, caller] {
            for (int round = 0; round < 200; ++round)
                pool.ForEach(20, 0, [&](int) { ++sums[caller]; });
        });
    for (std::thread& caller : callers)
        caller.join();
    for (const auto& sum : sums)
        EXPECT_EQ(sum, 4000);
}

} // namespace
} // namespace LumetraHost
