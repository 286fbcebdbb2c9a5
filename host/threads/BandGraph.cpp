// SPDX-License-Identifier: GPL-2.0-or-later
#include "threads/BandGraph.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <utility>

namespace LumetraHost {

/// The threads of one run. Each takes the task that lies furthest towards the result: the rings
/// then hold little, and a last node that works in order is kept busy.
class BandGraph::Workers
{
public:
    Workers(BandGraph& graph, const CancelToken* cancel) : m_graph(graph), m_cancel(cancel) {}

    void Work(int worker);
    bool IsCancelled() const { return m_cancel && m_cancel->IsCancelled(); }

private:
    bool Take(std::unique_lock<std::mutex>& lock, Task& task);
    void Run(std::unique_lock<std::mutex>& lock, const Task& task, int worker);

    BandGraph& m_graph;
    const CancelToken* m_cancel;
    std::mutex m_mutex;
    std::condition_variable m_hasChanged;
    bool m_isStopped = false;
};

void BandGraph::Workers::Work(int worker)
{
    std::unique_lock lock(m_mutex);
    Task task{};
    while (Take(lock, task))
        Run(lock, task, worker);
}

bool BandGraph::Workers::Take(std::unique_lock<std::mutex>& lock, Task& task)
{
    bool isFound = false;
    m_hasChanged.wait(lock, [&] {
        m_isStopped = m_isStopped || IsCancelled();
        isFound = !m_isStopped && m_graph.FindTask(task);
        return isFound || m_isStopped || m_graph.IsDone();
    });
    if (isFound)
        m_graph.Begin(task);
    return isFound;
}

void BandGraph::Workers::Run(std::unique_lock<std::mutex>& lock, const Task& task, int worker)
{
    lock.unlock();
    try {
        m_graph.m_nodes[static_cast<std::size_t>(task.node)].work(task.band, worker);
    } catch (...) {
        lock.lock();
        m_isStopped = true;
        m_hasChanged.notify_all();
        throw;
    }
    lock.lock();
    m_graph.End(task);
    m_hasChanged.notify_all();
}

int BandGraph::AddNode(Work work, bool isInOrder)
{
    Node node;
    node.work = std::move(work);
    node.isInOrder = isInOrder;
    node.hasEnded.assign(static_cast<std::size_t>(m_bands), 0);
    m_nodes.push_back(std::move(node));
    return static_cast<int>(m_nodes.size()) - 1;
}

void BandGraph::Connect(int writer, int reader, Reach reach, int capacity)
{
    m_edges.push_back({writer, reader, std::move(reach), capacity});
}

void BandGraph::Connect(int writer, int reader, int capacity)
{
    Reach reach;
    for (int band = 0; band < m_bands; ++band) {
        reach.first.push_back(band);
        reach.last.push_back(band);
    }
    Connect(writer, reader, std::move(reach), capacity);
}

bool BandGraph::Run(ThreadPool& pool, int threads, const CancelToken* cancel)
{
    const int limit = pool.GetThreadCount();
    const int count = threads < 1 ? limit : std::min(threads, limit);
    Workers workers(*this, cancel);
    pool.ForEach(count, count, [&workers](int worker) { workers.Work(worker); });
    return !workers.IsCancelled();
}

bool BandGraph::Has(const Edge& edge, int band) const
{
    const Node& writer = m_nodes[static_cast<std::size_t>(edge.writer)];
    return writer.ended > edge.reach.last[static_cast<std::size_t>(band)];
}

/// True when the ring's place for the band is free: nobody needs the band that is `capacity` above.
bool BandGraph::HasRoom(const Edge& edge, int band) const
{
    const Node& reader = m_nodes[static_cast<std::size_t>(edge.reader)];
    return reader.ended == m_bands ||
           edge.reach.first[static_cast<std::size_t>(reader.ended)] > band - edge.capacity;
}

bool BandGraph::IsReady(int index) const
{
    const Node& node = m_nodes[static_cast<std::size_t>(index)];
    if (node.next == m_bands || (node.isInOrder && node.running > 0))
        return false;
    return std::all_of(m_edges.begin(), m_edges.end(), [&](const Edge& edge) {
        return (edge.reader != index || Has(edge, node.next)) &&
               (edge.writer != index || HasRoom(edge, node.next));
    });
}

bool BandGraph::FindTask(Task& task) const
{
    for (int node = static_cast<int>(m_nodes.size()) - 1; node >= 0; --node)
        if (IsReady(node)) {
            task = {node, m_nodes[static_cast<std::size_t>(node)].next};
            return true;
        }
    return false;
}

void BandGraph::Begin(const Task& task)
{
    Node& node = m_nodes[static_cast<std::size_t>(task.node)];
    ++node.next;
    ++node.running;
}

void BandGraph::End(const Task& task)
{
    Node& node = m_nodes[static_cast<std::size_t>(task.node)];
    --node.running;
    node.hasEnded[static_cast<std::size_t>(task.band)] = 1;
    while (node.ended < m_bands && node.hasEnded[static_cast<std::size_t>(node.ended)])
        ++node.ended;
}

bool BandGraph::IsDone() const
{
    return std::all_of(m_nodes.begin(), m_nodes.end(),
                       [this](const Node& node) { return node.next == m_bands; });
}

} // namespace LumetraHost
