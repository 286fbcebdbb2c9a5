// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "strip/Thumbnail.h"

#include "threads/CancelToken.h"

#include <QObject>

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace LumetraEditor {

/// Makes thumbnails on threads of its own, which give way to all others. Only the thumbnails that
/// were asked for last are made, in that order: whoever scrolls on asks anew.
class ThumbnailLoader : public QObject
{
    Q_OBJECT

public:
    /// Called on the loader's threads, on several at once. Must not throw.
    using Make = std::function<Thumbnail(const ThumbnailRequest& request,
                                         const LumetraHost::CancelToken& cancel)>;

    explicit ThumbnailLoader(Make make, QObject* parent = nullptr);
    /// Waits for the thumbnails that are being made at this moment.
    ~ThumbnailLoader() override;

    /// Makes these thumbnails, the first one first. Earlier requests that are not among them are
    /// dropped, and their signals do not come.
    void Want(std::vector<ThumbnailRequest> requests);

signals:
    void made(const LumetraEditor::Thumbnail& thumbnail);

private:
    struct Running
    {
        ThumbnailRequest request;
        LumetraHost::CancelToken cancel;
        bool isDone = false; ///< the thumbnail is on its way to the GUI thread
    };
    using RunningPtr = std::shared_ptr<Running>;

    void Work();
    RunningPtr Take();
    void Deliver(const RunningPtr& running, const Thumbnail& thumbnail);
    bool IsRunning(const ThumbnailRequest& request) const;

    const Make m_make;
    std::mutex m_mutex; ///< guards what follows
    std::condition_variable m_hasRequests;
    std::vector<ThumbnailRequest> m_waiting; ///< the next one last
    std::vector<RunningPtr> m_running;
    bool m_isStopping = false;
    std::vector<std::thread> m_threads; ///< last, so that they start when all else is there
};

} // namespace LumetraEditor
