// SPDX-License-Identifier: GPL-2.0-or-later
#include "threads/BandGraph.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <stdexcept>
#include <vector>

namespace LumetraHost {
namespace {

constexpr int Bands = 57;

/// Each band needs the two around it.
BandGraph::Reach MakeNeighbours()
{
    BandGraph::Reach reach;
    for (int band = 0; band < Bands; ++band) {
        reach.first.push_back(std::max(0, band - 1));
        reach.last.push_back(std::min(Bands - 1, band + 1));
    }
    return reach;
}

class BandGraphOnThreads : public testing::TestWithParam<int>
{
protected:
    BandGraphOnThreads() : m_pool(3) {}

    ThreadPool m_pool;
};

INSTANTIATE_TEST_SUITE_P(Threads, BandGraphOnThreads, testing::Values(1, 2, 4));

TEST_P(BandGraphOnThreads, readOnlyWhatIsWrittenAndNotYetReplaced)
{
    constexpr int capacity = 4;
    std::vector<std::atomic<int>> ring(capacity);
    std::vector<std::atomic<int>> results(Bands);
    BandGraph graph(Bands);
    const int writer =
        graph.AddNode([&](int band, int) { ring[std::size_t(band % capacity)] = band; });
    const int reader = graph.AddNode([&](int band, int) {
        for (int b = std::max(0, band - 1); b <= std::min(Bands - 1, band + 1); ++b)
            results[std::size_t(band)] += ring[std::size_t(b % capacity)] == b ? 1 : 100;
    });
    graph.Connect(writer, reader, MakeNeighbours(), capacity);

    EXPECT_TRUE(graph.Run(m_pool, GetParam(), nullptr));

    for (int band = 0; band < Bands; ++band)
        EXPECT_EQ(results[std::size_t(band)], band == 0 || band == Bands - 1 ? 2 : 3) << band;
}

TEST_P(BandGraphOnThreads, keepNodesInOrderThatAskForIt)
{
    std::vector<int> seen;
    BandGraph graph(Bands);
    const int writer = graph.AddNode([](int, int) {});
    const int reader = graph.AddNode([&](int band, int) { seen.push_back(band); }, true);
    graph.Connect(writer, reader, 8);

    EXPECT_TRUE(graph.Run(m_pool, GetParam(), nullptr));

    EXPECT_EQ(seen.size(), std::size_t(Bands));
    EXPECT_TRUE(std::is_sorted(seen.begin(), seen.end()));
}

TEST_P(BandGraphOnThreads, giveEachThreadItsOwnNumber)
{
    std::vector<std::atomic<int>> inUse(4);
    std::atomic<int> clashes{0};
    BandGraph graph(Bands);
    graph.AddNode([&](int, int worker) {
        clashes += inUse[std::size_t(worker)]++ != 0;
        inUse[std::size_t(worker)]--;
    });

    EXPECT_TRUE(graph.Run(m_pool, GetParam(), nullptr));

    EXPECT_EQ(clashes, 0);
}

TEST_P(BandGraphOnThreads, passOnTheExceptionOfANode)
{
    std::atomic<int> after{0};
    BandGraph graph(Bands);
    const int writer = graph.AddNode([](int band, int) {
        if (band == 20)
            throw std::runtime_error("row 640 is missing");
    });
    const int reader = graph.AddNode([&](int band, int) { after += band >= 20; });
    graph.Connect(writer, reader, 4);

    EXPECT_THROW(graph.Run(m_pool, GetParam(), nullptr), std::runtime_error);
    EXPECT_EQ(after, 0);
}

TEST_P(BandGraphOnThreads, stopWhenCancelled)
{
    CancelToken cancel;
    std::atomic<int> count{0};
    BandGraph graph(Bands);
    graph.AddNode(
        [&](int band, int) {
            ++count;
            if (band == 10)
                cancel.Cancel();
        },
        true);

    EXPECT_FALSE(graph.Run(m_pool, GetParam(), &cancel));
    EXPECT_EQ(count, 11);
}

} // namespace
} // namespace LumetraHost
