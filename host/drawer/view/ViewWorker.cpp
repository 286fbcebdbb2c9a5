// SPDX-License-Identifier: GPL-2.0-or-later
#include "drawer/view/ViewWorker.h"

#include <chrono>
#include <utility>

namespace LumetraHost {
namespace {

using Clock = std::chrono::steady_clock;

/// Nanoseconds per pixel, assumed before anything was measured.
constexpr double AssumedScaling = 30;
constexpr double AssumedRendering = 30;
constexpr double TableDrawing = 1;
/// Nanoseconds that making a table is assumed to take.
constexpr double TableMaking = 1.5e6;
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
    ++m_waiters;
    m_hasJob.notify_one();
    m_isDone.wait(lock, [&] { return m_doneSerial >= serial; });
    --m_waiters;
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
        if (queued.job.isOtherPhoto)
            m_copy.SetOriginal({}, {}, {}); // lets go of the photo before
        m_ticks.Begin(queued.job.recipe.layers, queued.job.geometry.GetPixelCount());
        if (RunQuickFrame(queued))
            RunStep(queued, false);
    } catch (...) {
        ViewResult failed;
        failed.frame.serial = queued.job.serial;
        failed.error = std::current_exception();
        Post(queued, std::move(failed));
    }
}

/// The frame that is shown before the exact one, where there is reason for one. False when nobody
/// wants the exact one any more.
bool ViewWorker::RunQuickFrame(const Queued& queued)
{
    if (IsTickFromCopy(queued.job))
        return RunTickFromCopy(queued);
    const bool isLate = ChooseHalvings(queued.job) > 0;
    const bool isTick = IsTickFromTable(queued.job);
    if (isTick || (isLate && IsTableQuick(queued.job))) {
        const ViewGeometry geometry = MakeGeometry(queued.job, false);
        const Image picture = RenderFromTables(queued, geometry, m_full,
                                               isTick ? FindScreen(queued.job) : ScreenSpace());
        if (!picture.IsNull() || queued.cancel->IsCancelled())
            return PostFrame(queued, picture, geometry, m_full, true) &&
                   !(isTick ? IsSupersededSoon() : IsSuperseded());
    }
    return !isLate || (RunStep(queued, true) && !IsSuperseded());
}

/// Draws a tick of a photo in a space of its own as if it were in sRGB, which costs what it costs
/// there. Colours outside of sRGB are limited before the effects instead of after them until the
/// exact frame comes. The result is false when nobody wants that one.
bool ViewWorker::RunTickFromCopy(const Queued& queued)
{
    const ViewJob& job = queued.job;
    const bool isFromTable = m_ticks.IsTableQuicker(GetTableTime(job));
    if (!isFromTable && m_ticks.GetExact().value_or(0) > double(m_options.previewBeyond.count()))
        return RunStep(queued, true) && !IsSupersededSoon();
    const ViewGeometry geometry = MakeGeometry(job, false);
    const PhotoPart part = geometry.GetPhotoPart();
    if (!m_copy.HasScaled(job.recipe.photo, part))
        m_copy.SetOriginal(job.recipe, part,
                           m_renderer.ToSrgb(m_full.GetOriginal(job.recipe, part)));
    Image picture;
    if (isFromTable)
        picture = RenderFromTables(queued, geometry, m_copy);
    if (picture.IsNull() && !queued.cancel->IsCancelled())
        picture = RenderCopy(queued, geometry);
    return PostFrame(queued, picture, geometry, m_full, true) && !IsSupersededSoon();
}

/// True where the ticks of a drag are drawn from a copy in sRGB: the photo has a space of its own
/// and the screen shows nothing but sRGB.
bool ViewWorker::HasSrgbTicks(const ViewJob& job) const
{
    return job.recipe.photo.GetSpace() && !job.display &&
           job.geometry.GetPixelCount() >= m_options.leastTablePixels;
}

/// True where the ticks of a drag come from that renderer, so that its times tell of them.
bool ViewWorker::IsMeasured(const ViewJob& job, const PartRenderer& renderer) const
{
    return &renderer == (HasSrgbTicks(job) ? &m_copy : &m_full);
}

bool ViewWorker::IsTickFromCopy(const ViewJob& job) const
{
    return HasSrgbTicks(job) && m_ticks.IsDrag() && IsScaled(job);
}

/// Null when it was cancelled.
Image ViewWorker::RenderCopy(const Queued& queued, const ViewGeometry& geometry)
{
    const auto begin = Clock::now();
    const Image picture =
        m_copy.Render(queued.job.recipe, geometry.GetPhotoPart(), queued.cancel.get());
    if (!picture.IsNull())
        m_ticks.AddExact(double((Clock::now() - begin).count()));
    return picture;
}

/// Monitors whose profiles go by tables have no space to draw in.
ScreenSpace ViewWorker::FindScreen(const ViewJob& job)
{
    return job.display && job.display->GetSpace() ? ScreenSpace(job.display->GetSpace())
                                                  : ScreenSpace();
}

/// Null when it was cancelled, and when these effects make no table.
Image ViewWorker::RenderFromTables(const Queued& queued, const ViewGeometry& geometry,
                                   PartRenderer& renderer, const ScreenSpace& screen)
{
    const ViewJob& job = queued.job;
    const auto begin = Clock::now();
    const Image picture =
        renderer.RenderFromTables(job.recipe, geometry.GetPhotoPart(), queued.cancel.get(), screen);
    if (IsMeasured(job, renderer) && !picture.IsNull())
        m_ticks.AddTable(double((Clock::now() - begin).count()));
    else if (IsMeasured(job, renderer) && !queued.cancel->IsCancelled())
        m_ticks.RefuseTable();
    return picture;
}

bool ViewWorker::RunStep(const Queued& queued, bool isReduced)
{
    const ViewJob& job = queued.job;
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
    result.original = renderer.GetOriginal(job.recipe, geometry.GetPhotoPart());
    if (!queued.cancel->IsCancelled()) {
        const auto begin = Clock::now();
        result.frame.shown = ToDisplay(job, picture);
        if (!isReduced)
            m_conversionTime = double((Clock::now() - begin).count());
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
    const Image original = renderer.GetOriginal(job.recipe, geometry.GetPhotoPart());
    const auto scaled = Clock::now();
    if (original.IsNull())
        return original;
    if (&renderer == &m_reduced && original.GetSpace() && HasSrgbTicks(job))
        renderer.SetOriginal(job.recipe, geometry.GetPhotoPart(), m_renderer.ToSrgb(original));
    const Image picture = renderer.Render(job.recipe, geometry.GetPhotoPart(), queued.cancel.get());
    if (&renderer == &m_full && !picture.IsNull()) {
        const double pixels = geometry.GetPixelCount();
        const double rendering = double((Clock::now() - scaled).count());
        if (IsMeasured(job, renderer))
            m_ticks.AddExact(rendering);
        m_renderingTime = rendering / pixels;
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
        GetRenderingTime(job) +
        (m_full.HasScaledAround(job.recipe.photo, job.geometry.GetPhotoPart()) ? 0 : m_scalingTime);
    double expected = job.geometry.GetPixelCount() * perPixel;
    int halvings = 0;
    while (halvings < MostHalvings && expected > double(m_options.previewBeyond.count())) {
        expected /= 4;
        ++halvings;
    }
    return job.recipe.photo.IsNull() || job.geometry.part.isEmpty() ? 0 : halvings;
}

/// Nanoseconds per pixel of the view that the layers are expected to take.
double ViewWorker::GetRenderingTime(const ViewJob& job) const
{
    const auto tick = m_ticks.GetExact();
    return tick ? *tick / job.geometry.GetPixelCount() : m_renderingTime;
}

/// Nanoseconds that a picture from tables is assumed to take before any was measured.
double ViewWorker::GetTableTime(const ViewJob& job)
{
    return TableMaking + TableDrawing * job.geometry.GetPixelCount();
}

bool ViewWorker::IsScaled(const ViewJob& job) const
{
    return m_full.HasScaledAround(job.recipe.photo, job.geometry.GetPhotoPart());
}

/// True when tables make a preview of all pixels in time.
bool ViewWorker::IsTableQuick(const ViewJob& job) const
{
    return IsScaled(job) && !m_ticks.IsTableRefused() &&
           GetTableTime(job) <= double(m_options.previewBeyond.count());
}

/// Nanoseconds that a tick from tables saves, since they lead to the screen's colours at once.
double ViewWorker::GetConversionSaved(const ViewJob& job) const
{
    return job.recipe.photo.GetSpace() && FindScreen(job) ? m_conversionTime : 0;
}

/// True when an effect is being dragged, and tables have its picture sooner than the formulas.
bool ViewWorker::IsTickFromTable(const ViewJob& job) const
{
    return IsScaled(job) && job.geometry.GetPixelCount() >= m_options.leastTablePixels &&
           m_ticks.IsTableQuicker(GetTableTime(job), GetConversionSaved(job));
}

bool ViewWorker::IsSuperseded()
{
    const std::lock_guard lock(m_mutex);
    return m_waiting || m_isStopping;
}

/// Waits for as long as a drag may pause without coming to rest, unless somebody waits for the
/// exact frame. An exact frame that is begun between two ticks would only hold up the next one.
bool ViewWorker::IsSupersededSoon()
{
    std::unique_lock lock(m_mutex);
    m_hasJob.wait_for(lock, m_options.rest,
                      [this] { return m_waiting || m_isStopping || m_waiters > 0; });
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
