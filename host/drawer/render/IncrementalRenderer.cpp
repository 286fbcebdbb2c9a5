// SPDX-License-Identifier: GPL-2.0-or-later
#include "drawer/render/IncrementalRenderer.h"

#include "drawer/stack/SameEffects.h"

#include "engine/run/Blend.h"
#include "engine/run/CutChain.h"
#include "engine/run/PixelStep.h"
#include "engine/run/RenderPlan.h"
#include "engine/run/WholePicture.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectList;

std::vector<StagePtr> Slice(const std::vector<StagePtr>& stages, std::size_t first, std::size_t end)
{
    const auto begin = stages.begin();
    return {begin + static_cast<std::ptrdiff_t>(first), begin + static_cast<std::ptrdiff_t>(end)};
}

bool AreSameAreas(const std::optional<PictureArea>& first, const std::optional<PictureArea>& second)
{
    if (!first || !second)
        return !first && !second;
    return first->pictureWidth == second->pictureWidth &&
           first->pictureHeight == second->pictureHeight && first->originX == second->originX &&
           first->originY == second->originY && first->scaleX == second->scaleX &&
           first->scaleY == second->scaleY;
}

} // namespace

IncrementalRenderer::IncrementalRenderer(const Renderer& renderer) : m_renderer(renderer) {}

void IncrementalRenderer::Clear()
{
    m_source = Image();
    m_effects.clear();
    m_kept.count = 0;
    m_kept.frame.Free();
}

Image IncrementalRenderer::Render(const Image& source,
                                  const Zorvik::Quindle::EffectsSettings& effects,
                                  const RenderOptions& options, Image recycled)
{
    const auto area =
        options.area.value_or(PictureArea::Whole(source.GetWidth(), source.GetHeight()));
    if (!m_source.SharesPixelsWith(source) || !AreSameAreas(m_area, area))
        Clear();
    m_source = source;
    m_area = area;

    const auto facts = options.facts ? options.facts : WholePicture::Of(source, area);
    const StageContext context{LimitToSupported(options.isa), area, source.GetDepth(),
                               source.GetSpace(), facts};
    const EffectList same = TakeSameEffects(effects.Effects());
    const RenderPlan plan(effects.Effects(), context);
    const auto& stages = plan.GetFirstStages();
    std::size_t cut = 0;
    if (!same.empty() && CanKeep(source, plan, effects.GetBlendAmount()))
        cut =
            StageChain::FindCut(stages, RenderPlan(same, context).GetEndOfEffects(), context.depth);
    // The stages of the picture's space before the effects may be merged with the effects.
    if (cut <= plan.GetFirstOfEffects())
        cut = 0;
    const bool isOfUse = m_kept.count > 0 && m_kept.count <= cut &&
                         StageChain::CanGoOnAt(stages, m_kept.count, m_kept.space, context.depth);
    if (!isOfUse)
        m_kept.count = 0;
    if (cut == 0)
        return m_renderer.Render(source, effects, options, std::move(recycled));
    return RenderFrom(stages, cut, source, effects.GetBlendAmount(), options, std::move(recycled));
}

/// The effects in front of the first one that differs from the last call. Keeps all `effects` for
/// the next comparison.
EffectList IncrementalRenderer::TakeSameEffects(const EffectList& effects)
{
    const auto differing = std::mismatch(effects.begin(), effects.end(), m_effects.begin(),
                                         m_effects.end(), AreSameEffects);
    EffectList same(effects.begin(), differing.first);
    m_effects = effects;
    return same;
}

bool IncrementalRenderer::CanKeep(const Image& source, const RenderPlan& plan, int blendAmount)
{
    return !source.IsNull() && plan.GetPasses().empty() &&
           ClampBlendAmount(blendAmount) != SourceOnly &&
           PlanarFrame::CountBytes(source.GetWidth(), source.GetHeight()) <= LargestCache;
}

/// Starts from the kept picture, or from the source's pixels, and keeps the picture at the cut.
Image IncrementalRenderer::RenderFrom(const std::vector<StagePtr>& stages, std::size_t cut,
                                      const Image& source, int blendAmount,
                                      const RenderOptions& options, Image recycled)
{
    const Isa isa = LimitToSupported(options.isa);
    const Image::Depth depth = source.GetDepth();
    const bool isFromFrame = m_kept.count > 0;
    const auto first = isFromFrame ? std::optional(m_kept.space) : std::nullopt;
    const ColourSpace space = StageChain::GetSpaceAtCut(stages, cut, depth);
    const bool isToFrame = cut > m_kept.count || first != space;
    const CutChain chain{StageChain(Slice(stages, m_kept.count, cut), isa, depth, first, space),
                         StageChain(Slice(stages, cut, stages.size()), isa, depth, space, {},
                                    PixelStep::GetEnd(GetSourceWeight(blendAmount))),
                         &m_kept.frame, isFromFrame, isToFrame};
    m_kept.frame.Resize(source.GetWidth(), source.GetHeight());
    if (isToFrame)
        m_kept.count = 0; // nothing counts as kept until all of it is there
    Image picture = m_renderer.Render(source, chain, blendAmount, options, std::move(recycled));
    if (isToFrame && !picture.IsNull()) {
        m_kept.count = cut;
        m_kept.space = space;
    }
    return picture;
}

} // namespace LumetraHost
