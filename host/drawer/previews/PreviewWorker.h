// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "drawer/previews/PreviewCache.h"
#include "drawer/render/PreviewRenderer.h"
#include "drawer/stack/PictureRecipe.h"

#include "engine/run/Renderer.h"
#include "threads/CancelToken.h"

#include "Zorvik/Proc/Frame.h"

#include <QString>

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace LumetraHost {

/// One preview to be rendered, taken at one moment.
struct PreviewJob
{
    QString key;
    PreviewRequest request;
    std::shared_ptr<const PictureRecipe> committed;
};

struct PreviewResult
{
    QString key;
    SharedSettings effects;
    Zorvik::Proc::Frame frame; ///< null when it could not be rendered
    std::string error;         ///< and why
};

/// The thread that renders previews, newest job first, on one core at a time so that what the user
/// drags keeps the others. Owned by AsyncPreviews.
class PreviewWorker
{
public:
    /// `hasResults` is called on the worker's thread when TakeResults() has something new.
    explicit PreviewWorker(std::function<void()> hasResults);
    /// Cancels what is running.
    ~PreviewWorker();
    PreviewWorker(const PreviewWorker&) = delete;
    PreviewWorker& operator=(const PreviewWorker&) = delete;

    /// Takes the place of a waiting job of the same key.
    void Add(PreviewJob job);
    /// Makes the waiting job of that key the next one.
    void MoveToFront(const QString& key);
    /// Drops all jobs and results.
    void CancelAll();
    std::vector<PreviewResult> TakeResults();
    /// Returns when no job waits or runs.
    void WaitForAll();

private:
    void Work();
    bool TakeJob(PreviewJob& job);
    PreviewResult Render(const PreviewJob& job, const CancelToken& cancel);
    void Post(PreviewResult result, const CancelToken& cancel);

    const std::function<void()> m_hasResults;
    Renderer m_renderer;
    PreviewRenderer m_previews;

    std::mutex m_mutex;
    std::condition_variable m_hasJobs;
    std::condition_variable m_isIdle;
    std::vector<PreviewJob> m_jobs; ///< the next one last
    std::vector<PreviewResult> m_results;
    std::shared_ptr<CancelToken> m_running; ///< null: nothing is being rendered
    bool m_isStopping = false;
    std::thread m_thread; ///< last, so that it starts when all else is there
};

} // namespace LumetraHost
