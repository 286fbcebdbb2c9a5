// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/run/Renderer.h"

#include "engine/effects/EffectKinds.h"
#include "engine/run/Blend.h"
#include "engine/run/PictureRun.h"
#include "engine/run/RenderPlan.h"
#include "engine/run/WholePicture.h"

#include "Zorvik/Exception.h"

#include <boost/current_function.hpp>

#include <algorithm>
#include <cmath>
#include <utility>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectList;
using Zorvik::Quindle::EffectPtr;

int CountThreads(int wish, const ThreadPool& pool)
{
    return wish < 1 ? pool.GetThreadCount() : std::min(wish, pool.GetThreadCount());
}

PictureRunForm MakeForm(const Image& source, int blendAmount, const RenderOptions& options,
                        const ThreadPool& pool)
{
    PictureRunForm form;
    form.width = source.GetWidth();
    form.height = source.GetHeight();
    form.depth = source.GetDepth();
    form.blendAmount = blendAmount;
    form.isa = LimitToSupported(options.isa);
    form.threads = CountThreads(options.threads, pool);
    form.tilePixels = options.tilePixels;
    return form;
}

/// Null when it was cancelled.
Image Draw(PictureRun&& run, const Image& source, Image recycled, const CancelToken* cancel,
           ThreadPool& pool)
{
    Image target = AllocateLike(source, std::move(recycled));
    return run.Draw(source, target, pool, cancel) ? target : Image();
}

bool HaveSameForm(const Image& first, const Image& second)
{
    return first.GetWidth() == second.GetWidth() && first.GetHeight() == second.GetHeight() &&
           first.GetDepth() == second.GetDepth() && first.GetSpace() == second.GetSpace();
}

} // namespace

Renderer::Renderer(ThreadPool& pool) : m_pool(&pool) {}

Image Renderer::Render(const Image& source, const Zorvik::Quindle::EffectsSettings& effects,
                       const RenderOptions& options, Image recycled) const
{
    return Render(source, effects.Effects(), effects.GetBlendAmount(), options,
                  std::move(recycled));
}

Image Renderer::Render(const Image& source, const EffectList& effects, int blendAmount,
                       const RenderOptions& options, Image recycled) const
{
    if (source.IsNull() || ClampBlendAmount(blendAmount) == SourceOnly)
        return source;
    const auto area =
        options.area.value_or(PictureArea::Whole(source.GetWidth(), source.GetHeight()));
    const auto facts = options.facts ? options.facts : WholePicture::Of(source, area);
    const RenderPlan plan(effects, {LimitToSupported(options.isa), area, source.GetDepth(),
                                    source.GetSpace(), facts});
    if (plan.IsEmpty())
        return source;
    return Draw(PictureRun(plan, MakeForm(source, blendAmount, options, *m_pool)), source,
                std::move(recycled), options.cancel, *m_pool);
}

Image Renderer::Render(const Image& source, const CutChain& cut, int blendAmount,
                       const RenderOptions& options, Image recycled) const
{
    return Draw(PictureRun(cut, MakeForm(source, blendAmount, options, *m_pool)), source,
                std::move(recycled), options.cancel, *m_pool);
}

Image Renderer::Render(const Image& source, std::shared_ptr<const ColourTable> table,
                       int blendAmount, const RenderOptions& options, Image recycled) const
{
    if (source.IsNull() || ClampBlendAmount(blendAmount) == SourceOnly)
        return source;
    PictureRunForm form = MakeForm(source, blendAmount, options, *m_pool);
    form.table = std::move(table);
    return Draw(PictureRun(form), source, std::move(recycled), options.cancel, *m_pool);
}

Image Renderer::Interpolate(const Image& source, const Image& effect, int blendAmount,
                            const RenderOptions& options, Image recycled) const
{
    if (!HaveSameForm(source, effect))
        throw Zorvik::Exception("blend of two pictures: expected the same size, depth and space",
                                BOOST_CURRENT_FUNCTION, "engine/Renderer", __LINE__);
    if (ClampBlendAmount(blendAmount) == SourceOnly || source.SharesPixelsWith(effect))
        return source;
    if (ClampBlendAmount(blendAmount) == FullEffect)
        return effect;
    Image target = AllocateLike(source, std::move(recycled));
    Blend(source, effect, blendAmount, target, LimitToSupported(options.isa), options.threads,
          *m_pool);
    return target;
}

Image Renderer::Convert(const Image& source, const std::shared_ptr<const RgbSpace>& target,
                        const RenderOptions& options, Image recycled) const
{
    if (source.IsNull() || !source.GetSpace() || source.GetSpace() == target)
        return source;
    const auto area = PictureArea::Whole(source.GetWidth(), source.GetHeight());
    const RenderPlan plan = RenderPlan::MakeConversion(
        {LimitToSupported(options.isa), area, source.GetDepth(), source.GetSpace()}, target);
    Image picture = Draw(PictureRun(plan, MakeForm(source, FullEffect, options, *m_pool)), source,
                         std::move(recycled), options.cancel, *m_pool);
    picture.SetSpace(target);
    return picture;
}

int Renderer::FindHalo(const EffectList& effects, const PictureArea& area)
{
    // Covers four standard deviations, and a cell of wide Gaussians (see GaussianAxis).
    constexpr double reach = 4.3;
    const RenderPlan plan(effects, {Isa::Baseline, area});
    int halo = 0;
    for (const SpatialPassPtr& pass : plan.GetPasses()) {
        const GaussianShape shape = pass->GetShape();
        halo += static_cast<int>(std::ceil(reach * std::max(shape.sigmaX, shape.sigmaY))) + 1;
    }
    return halo;
}

} // namespace LumetraHost
