// SPDX-License-Identifier: GPL-2.0-or-later
#include "drawer/previews/PreviewWorker.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace LumetraHost {

PreviewWorker::PreviewWorker(std::function<void()> hasResults)
    : m_hasResults(std::move(hasResults)), m_previews(m_renderer, 1), m_thread([this] { Work(); })
{
}

PreviewWorker::~PreviewWorker()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isStopping = true;
        if (m_running)
            m_running->Cancel();
    }
    m_hasJobs.notify_all();
    m_thread.join();
}

void PreviewWorker::Add(PreviewJob job)
{
    {
        const std::lock_guard lock(m_mutex);
        const auto isSameKey = [&](const PreviewJob& other) { return other.key == job.key; };
        m_jobs.erase(std::remove_if(m_jobs.begin(), m_jobs.end(), isSameKey), m_jobs.end());
        m_jobs.push_back(std::move(job));
    }
    m_hasJobs.notify_one();
}

void PreviewWorker::MoveToFront(const QString& key)
{
    const std::lock_guard lock(m_mutex);
    const auto found = std::find_if(m_jobs.begin(), m_jobs.end(),
                                    [&](const PreviewJob& job) { return job.key == key; });
    if (found != m_jobs.end())
        std::rotate(found, found + 1, m_jobs.end());
}

void PreviewWorker::CancelAll()
{
    const std::lock_guard lock(m_mutex);
    m_jobs.clear();
    m_results.clear();
    if (m_running)
        m_running->Cancel();
}

std::vector<PreviewResult> PreviewWorker::TakeResults()
{
    const std::lock_guard lock(m_mutex);
    return std::exchange(m_results, {});
}

void PreviewWorker::WaitForAll()
{
    std::unique_lock lock(m_mutex);
    m_isIdle.wait(lock, [this] { return m_jobs.empty() && !m_running; });
}

void PreviewWorker::Work()
{
    for (PreviewJob job; TakeJob(job);)
        Post(Render(job, *m_running), *m_running);
}

bool PreviewWorker::TakeJob(PreviewJob& job)
{
    std::unique_lock lock(m_mutex);
    m_running.reset();
    if (m_jobs.empty())
        m_isIdle.notify_all();
    m_hasJobs.wait(lock, [this] { return m_isStopping || !m_jobs.empty(); });
    if (m_isStopping)
        return false;
    job = std::move(m_jobs.back());
    m_jobs.pop_back();
    m_running = std::make_shared<CancelToken>();
    return true;
}

PreviewResult PreviewWorker::Render(const PreviewJob& job, const CancelToken& cancel)
{
    const PreviewRequest& request = job.request;
    PreviewResult result{job.key, request.effects, {}, {}};
    try {
        result.frame = m_previews.Render(*job.committed, request.target, *request.effects,
                                         request.policies, &cancel);
    } catch (const std::exception& error) {
        result.error = error.what();
    }
    return result;
}

void PreviewWorker::Post(PreviewResult result, const CancelToken& cancel)
{
    {
        const std::lock_guard lock(m_mutex);
        if (cancel.IsCancelled())
            return;
        m_results.push_back(std::move(result));
    }
    m_hasResults();
}

} // namespace LumetraHost
