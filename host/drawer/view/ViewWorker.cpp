// SPDX-License-Identifier: GPL-2.0-or-later
#include "drawer/view/ViewWorker.h"

#include <utility>

namespace LumetraHost {
namespace {

using Clock = std::chrono::steady_clock;

/// Nanoseconds per pixel, assumed before anything was measured.
constexpr double AssumedScaling = 30;
constexpr double AssumedRendering = 30;
constexpr double TableDrawing = 4;
/// Entries and probes of a table.
constexpr double TableColours = 40000;
constexpr int MostHalvings = 2;
/// Rendered pixels to which the border for spatial effects is rounded up.
constexpr int HaloStep = 32;

} // namespace

ViewWorker::ViewWorker(const LiveViewOptions& options, std::function<void()> frameIsThere)
    : m_options(options), m_frameIsThere(std::move(frameIsThere)), m_scalingTime(AssumedScaling),
      m_renderingTime(AssumedRendering), m_thread([this] { Work(); })
{
}

ViewWorker::~ViewWorker()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isStopping = true;
        if (m_running)
            m_running->Cancel();
    }
    m_hasJob.notify_all();
    m_thread.join();
}

void ViewWorker::Start(ViewJob job)
{
    {
        const std::lock_guard lock(m_mutex);
        if (m_running && (job.isOtherPhoto || !m_wasCancelled))
            m_running->Cancel();
        // A frame of another photo that the replaced job ruled out stays ruled out.
        if (m_waiting && m_waiting->job.isOtherPhoto)
            job.isOtherPhoto = true;
        if (job.isOtherPhoto)
            m_result.reset();
        m_waiting = Queued{std::move(job), std::make_shared<CancelToken>()};
    }
    m_hasJob.notify_one();
}

std::optional<ViewResult> ViewWorker::TakeResult()
{
    const std::lock_guard lock(m_mutex);
    return std::exchange(m_result, std::nullopt);
}

void ViewWorker::WaitFor(quint64 serial)
{
    std::unique_lock lock(m_mutex);
    m_isDone.wait(lock, [&] { return m_doneSerial >= serial; });
}

void ViewWorker::Work()
{
    while (const auto queued = TakeJob())
        Run(*queued);
}

std::optional<ViewWorker::Queued> ViewWorker::TakeJob()
{
    std::unique_lock lock(m_mutex);
    m_running.reset();
    m_hasJob.wait(lock, [this] { return m_isStopping || m_waiting; });
    if (m_isStopping)
        return std::nullopt;
    m_running = m_waiting->cancel;
    return std::exchange(m_waiting, std::nullopt);
}

void ViewWorker::Run(const Queued& queued)
{
    try {
        if (ChooseHalvings(queued.job) > 0 && (!RunPreview(queued) || IsSuperseded()))
            return;
        RunStep(queued, false);
    } catch (...) {
        ViewResult failed;
        failed.frame.serial = queued.job.serial;
        failed.error = std::current_exception();
        Post(queued, std::move(failed));
    }
}

bool ViewWorker::RunPreview(const Queued& queued)
{
    const ViewJob& job = queued.job;
    if (!IsTableQuick(job))
        return RunStep(queued, true);
    if (m_options.onRendering)
        m_options.onRendering({job.serial, true, *queued.cancel});
    const ViewGeometry geometry = MakeGeometry(job, false);
    const Image picture =
        m_full.RenderFromTables(job.recipe, geometry.GetPhotoPart(), queued.cancel.get());
    if (picture.IsNull() && !queued.cancel->IsCancelled())
        return RunStep(queued, true);
    return PostFrame(queued, picture, geometry, m_full, true);
}

bool ViewWorker::RunStep(const Queued& queued, bool isReduced)
{
    const ViewJob& job = queued.job;
    if (m_options.onRendering)
        m_options.onRendering({job.serial, isReduced, *queued.cancel});
    PartRenderer& renderer = isReduced ? m_reduced : m_full;
    const ViewGeometry geometry = MakeGeometry(job, isReduced);
    return PostFrame(queued, Render(queued, geometry, renderer), geometry, renderer, isReduced);
}

Image ViewWorker::ToDisplay(const ViewJob& job, const Image& picture)
{
    if (!NeedsConversion(job, picture))
        return picture;
    const Image::Depth depth = job.display ? Image::Depth::Bits8 : picture.GetDepth();
    const Image shown =
        Convert(job, picture, m_displaySpares.Take(picture.GetWidth(), picture.GetHeight(), depth));
    m_displaySpares.Remember(shown);
    return shown;
}

bool ViewWorker::NeedsConversion(const ViewJob& job, const Image& picture)
{
    return !picture.IsNull() && (job.display || picture.GetSpace());
}

Image ViewWorker::Convert(const ViewJob& job, const Image& picture, Image recycled) const
{
    return job.display ? job.display->Apply(picture, std::move(recycled))
                       : m_renderer.ToSrgb(picture, {}, std::move(recycled));
}

Image ViewWorker::OriginalToDisplay(const ViewJob& job, const Image& original)
{
    if (!NeedsConversion(job, original))
        return original;
    if (!job.needsOriginal)
        return {};
    DisplayedOriginal& kept = m_displayedOriginal;
    if (kept.display != job.display || !kept.picture.SharesPixelsWith(original))
        kept = {original, job.display, Convert(job, original, {})};
    return kept.shown;
}

bool ViewWorker::PostFrame(const Queued& queued, const Image& picture, const ViewGeometry& geometry,
                           PartRenderer& renderer, bool isReduced)
{
    const ViewJob& job = queued.job;
    ViewResult result;
    result.frame.picture = picture;
    result.original = renderer.GetOriginal(job.recipe.photo, geometry.GetPhotoPart());
    if (!queued.cancel->IsCancelled()) {
        result.frame.shown = ToDisplay(job, picture);
        result.shownOriginal = OriginalToDisplay(job, result.original);
    }
    result.frame.part = geometry.part;
    result.frame.serial = job.serial;
    result.frame.isReduced = isReduced;
    result.frame.isOpaque = renderer.IsOpaque();
    return Post(queued, std::move(result));
}

Image ViewWorker::Render(const Queued& queued, const ViewGeometry& geometry, PartRenderer& renderer)
{
    const ViewJob& job = queued.job;
    const auto begin = Clock::now();
    const bool wasScaled = renderer.HasScaled(job.recipe.photo, geometry.GetPhotoPart());
    const Image original = renderer.GetOriginal(job.recipe.photo, geometry.GetPhotoPart());
    const auto scaled = Clock::now();
    if (original.IsNull() || job.showsOriginal)
        return original;
    const Image picture = renderer.Render(job.recipe, geometry.GetPhotoPart(), queued.cancel.get());
    if (&renderer == &m_full && !picture.IsNull()) {
        const double pixels = geometry.GetPixelCount();
        m_renderingTime = double((Clock::now() - scaled).count()) / pixels;
        if (!wasScaled)
            m_scalingTime = double((scaled - begin).count()) / pixels;
    }
    return picture;
}

/// Adds the border that spatial effects look at, so that a part of the photo looks as it does in
/// the whole one. Coarse steps keep the scaled part while a radius is dragged.
ViewGeometry ViewWorker::MakeGeometry(const ViewJob& job, bool isReduced) const
{
    const QSize photo(job.recipe.photo.GetWidth(), job.recipe.photo.GetHeight());
    const ViewGeometry geometry =
        isReduced ? job.geometry.GetReduced(ChooseHalvings(job)) : job.geometry;
    if (geometry.part.isEmpty() || geometry.part.size() == photo)
        return geometry;
    const PictureArea area = geometry.GetPhotoPart().GetArea(photo.width(), photo.height());
    int halo = 0;
    for (const Layer& layer : job.recipe.layers)
        halo += Renderer::FindHalo(layer.settings->Effects(), area);
    return geometry.GetEnlarged((halo + HaloStep - 1) / HaloStep * HaloStep, photo);
}

/// How often the picture is halved for a first preview; 0: the full one is soon there.
int ViewWorker::ChooseHalvings(const ViewJob& job) const
{
    const double perPixel =
        (job.showsOriginal ? 0 : m_renderingTime) +
        (m_full.HasScaledAround(job.recipe.photo, job.geometry.GetPhotoPart()) ? 0 : m_scalingTime);
    double expected = job.geometry.GetPixelCount() * perPixel;
    int halvings = 0;
    while (halvings < MostHalvings && expected > double(m_options.reducedBeyond.count())) {
        expected /= 4;
        ++halvings;
    }
    return job.recipe.photo.IsNull() || job.geometry.part.isEmpty() ? 0 : halvings;
}

/// True when tables make a preview of all pixels in time. Making a table costs as much as rendering
/// the colours that it holds.
bool ViewWorker::IsTableQuick(const ViewJob& job) const
{
    if (job.showsOriginal || !m_full.HasScaledAround(job.recipe.photo, job.geometry.GetPhotoPart()))
        return false;
    const double expected =
        TableColours * m_renderingTime + TableDrawing * job.geometry.GetPixelCount();
    return expected <= double(m_options.reducedBeyond.count());
}

bool ViewWorker::IsSuperseded()
{
    const std::lock_guard lock(m_mutex);
    return m_waiting || m_isStopping;
}

/// False when nobody wants the result any more.
bool ViewWorker::Post(const Queued& queued, ViewResult result)
{
    const bool isDone = !result.frame.isReduced;
    {
        const std::lock_guard lock(m_mutex);
        m_wasCancelled = queued.cancel->IsCancelled();
        if (m_wasCancelled)
            return false;
        m_result = std::move(result);
        if (isDone)
            m_doneSerial = queued.job.serial;
    }
    if (isDone)
        m_isDone.notify_all();
    m_frameIsThere();
    return true;
}

} // namespace LumetraHost
