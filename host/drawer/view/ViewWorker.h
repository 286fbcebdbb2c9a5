// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "drawer/render/PartRenderer.h"
#include "drawer/stack/PictureRecipe.h"
#include "drawer/view/DisplayTransform.h"
#include "drawer/view/LiveViewOptions.h"
#include "drawer/view/TickCosts.h"
#include "drawer/view/ViewFrame.h"
#include "drawer/view/ViewGeometry.h"
#include "image/ImagePool.h"

#include "engine/run/Renderer.h"
#include "threads/CancelToken.h"

#include <condition_variable>
#include <exception>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

namespace LumetraHost {

/// Everything that a frame needs, taken at one moment.
struct ViewJob
{
    quint64 serial = 0;
    PictureRecipe recipe;
    ViewGeometry geometry;
    std::shared_ptr<const DisplayTransform> display; ///< null: sRGB
    bool needsOriginal = false;                      ///< in the display's colours too
    /// True: no frame of a job before this one may be shown any more.
    bool isOtherPhoto = false;
};

/// The outcome of a job.
struct ViewResult
{
    ViewFrame frame;
    Image original;           ///< the frame's part without any package
    Image shownOriginal;      ///< `original` in the monitor's colours; null: was not needed
    std::exception_ptr error; ///< why there is no frame
};

/// The thread that renders a live view, with room for one waiting job: a newer one takes its place.
/// A running rendering is cancelled by a newer job, but never two in a row with no frame between,
/// so that a drag always shows something. Owned by the view.
class ViewWorker
{
public:
    /// `frameIsThere` is called on the worker's thread when TakeResult() has something new.
    ViewWorker(const LiveViewOptions& options, std::function<void()> frameIsThere);
    /// Cancels what is running.
    ~ViewWorker();
    ViewWorker(const ViewWorker&) = delete;
    ViewWorker& operator=(const ViewWorker&) = delete;

    /// Serials count upwards.
    void Start(ViewJob job);
    /// The newest result that was not taken yet.
    std::optional<ViewResult> TakeResult();
    /// Returns when the job of that serial, or a later one, has its full frame or has failed.
    void WaitFor(quint64 serial);

private:
    struct Queued
    {
        ViewJob job;
        std::shared_ptr<CancelToken> cancel;
    };

    /// The converted untouched photo, kept because it changes seldom.
    struct DisplayedOriginal
    {
        Image picture;
        std::shared_ptr<const DisplayTransform> display;
        Image shown;
    };
    /// The frame on the screen, the one on its way there, and the one being converted.
    static constexpr std::size_t DisplaySpares = 3;

    void Work();
    std::optional<Queued> TakeJob();
    void Run(const Queued& queued);
    bool RunQuickFrame(const Queued& queued);
    bool RunTickFromCopy(const Queued& queued);
    bool RunStep(const Queued& queued, bool isReduced);
    static bool NeedsConversion(const ViewJob& job, const Image& picture);
    Image Convert(const ViewJob& job, const Image& picture, Image recycled) const;
    /// Converts `picture` to the colours of the job's display.
    Image ToDisplay(const ViewJob& job, const Image& picture);
    Image OriginalToDisplay(const ViewJob& job, const Image& original);
    bool PostFrame(const Queued& queued, const Image& picture, const ViewGeometry& geometry,
                   PartRenderer& renderer, bool isReduced);
    Image Render(const Queued& queued, const ViewGeometry& geometry, PartRenderer& renderer);
    double GetConversionSaved(const ViewJob& job) const;
    static ScreenSpace FindScreen(const ViewJob& job);
    Image RenderFromTables(const Queued& queued, const ViewGeometry& geometry,
                           PartRenderer& renderer, const ScreenSpace& screen = {});
    Image RenderCopy(const Queued& queued, const ViewGeometry& geometry);
    bool HasSrgbTicks(const ViewJob& job) const;
    bool IsMeasured(const ViewJob& job, const PartRenderer& renderer) const;
    bool IsTickFromCopy(const ViewJob& job) const;
    bool IsScaled(const ViewJob& job) const;
    bool IsTickFromTable(const ViewJob& job) const;
    bool IsTableQuick(const ViewJob& job) const;
    static double GetTableTime(const ViewJob& job);
    double GetRenderingTime(const ViewJob& job) const;
    ViewGeometry MakeGeometry(const ViewJob& job, bool isReduced) const;
    int ChooseHalvings(const ViewJob& job) const;
    bool IsSuperseded();
    bool IsSupersededSoon();
    bool Post(const Queued& queued, ViewResult result);

    const LiveViewOptions m_options;
    const std::function<void()> m_frameIsThere;
    Renderer m_renderer;
    PartRenderer m_full{m_renderer, LayerUse::Interaction};
    PartRenderer m_reduced{m_renderer, LayerUse::Interaction};
    PartRenderer m_copy{m_renderer, LayerUse::Interaction}; ///< in sRGB, see IsTickFromCopy()
    ImagePool m_displaySpares{DisplaySpares};
    DisplayedOriginal m_displayedOriginal;
    double m_conversionTime = 0; ///< nanoseconds, of the last exact frame
    double m_scalingTime;        ///< nanoseconds per pixel of the view, as measured last
    double m_renderingTime;      ///< nanoseconds per pixel of the view that the layers took last
    TickCosts m_ticks{m_options.largestTableShare};

    std::mutex m_mutex;
    std::condition_variable m_hasJob;
    std::condition_variable m_isDone;
    std::optional<Queued> m_waiting;
    std::shared_ptr<CancelToken> m_running;
    std::optional<ViewResult> m_result;
    quint64 m_doneSerial = 0;
    int m_waiters = 0; ///< threads in WaitFor()
    bool m_wasCancelled =
        false; ///< true: a rendering was cancelled, and no frame has been posted since
    bool m_isStopping = false;
    std::thread m_thread; ///< last, so that it starts when all else is there
};

} // namespace LumetraHost
