// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "threads/CancelToken.h"
#include "threads/ThreadPool.h"

#include <functional>
#include <vector>

namespace LumetraHost {

/// Work on a picture in bands of rows that runs through several nodes at once: a node may begin a
/// band as soon as its input is there, while other nodes are still busy with bands above or below.
/// Between two nodes lies a ring of bands, so that memory does not grow with the picture. Built,
/// run once and thrown away by one thread; the nodes run on the pool's.
class BandGraph
{
public:
    /// Works on one band. `worker` counts the threads from 0: no two calls at the same time have
    /// the same one.
    using Work = std::function<void(int band, int worker)>;

    /// The input of the reading node: for each of its bands the first and the last band of the node
    /// before that it needs. Neither may decrease from band to band.
    struct Reach
    {
        std::vector<int> first;
        std::vector<int> last;
    };

    explicit BandGraph(int bands) : m_bands(bands) {}

    int GetBandCount() const { return m_bands; }

    /// Adds a node that works on any bands at the same time; with `isInOrder` on one after the
    /// other. Nodes are added from the picture's source to its result. Returns the node's number.
    int AddNode(Work work, bool isInOrder = false);

    /// Lets `reader` read the bands of `writer`. `capacity`: bands that the ring between them
    /// holds, at least one more than the largest distance between the first band that is read and
    /// the last one that has to be written by then.
    void Connect(int writer, int reader, Reach reach, int capacity);
    /// Connects a reader that needs the band itself and no other.
    void Connect(int writer, int reader, int capacity);

    /// Runs all nodes over all bands on up to `threads` threads (below 1: all). The first exception
    /// of a node stops the others and is thrown here. False when it was cancelled.
    bool Run(ThreadPool& pool, int threads, const CancelToken* cancel);

private:
    struct Node
    {
        Work work;
        bool isInOrder = false;
        int next = 0;    ///< band to begin
        int running = 0; ///< bands begun and not ended
        int ended = 0;   ///< all bands before this one have ended
        std::vector<char> hasEnded;
    };

    struct Edge
    {
        int writer;
        int reader;
        Reach reach;
        int capacity;
    };

    struct Task
    {
        int node;
        int band;
    };

    class Workers;

    bool IsReady(int node) const;
    bool Has(const Edge& edge, int band) const;
    bool HasRoom(const Edge& edge, int band) const;
    bool FindTask(Task& task) const;
    void Begin(const Task& task);
    void End(const Task& task);
    bool IsDone() const;

    int m_bands;
    std::vector<Node> m_nodes;
    std::vector<Edge> m_edges;
};

} // namespace LumetraHost
