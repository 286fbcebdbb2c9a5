// SPDX-License-Identifier: GPL-2.0-or-later
#include "drawer/IncrementalRenderer.h"

#include "drawer/SameEffects.h"

#include "engine/Blend.h"
#include "engine/RenderPlan.h"
#include "engine/Segment.h"
#include "engine/pixels/PixelStep.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectList;

struct alignas(64) TilePlanes
{
    float values[3][Segment::LargestTile];
};

Tile GetTileOfThread()
{
    thread_local const auto planes = std::make_unique<TilePlanes>();
    return {planes->values[0], planes->values[1], planes->values[2]};
}

bool AreMerged(const Stage& first, const Stage& second)
{
    return first.GetMatrix() && second.GetMatrix() &&
           first.GetColourSpace() == second.GetColourSpace();
}

/// The last place up to `wish` that no merged stage lies across.
std::size_t FindSeam(const std::vector<StagePtr>& stages, std::size_t wish)
{
    std::size_t seam = std::min(wish, stages.size());
    while (seam > 0 && seam < stages.size() && AreMerged(*stages[seam - 1], *stages[seam]))
        --seam;
    return seam;
}

Image MakeTarget(const Image& source, Image recycled)
{
    const bool fits = recycled.GetWidth() == source.GetWidth() &&
                      recycled.GetHeight() == source.GetHeight() &&
                      recycled.GetDepth() == source.GetDepth();
    if (fits && recycled.IsSoleOwner())
        return recycled;
    return Image::AllocateUninitialised(source.GetWidth(), source.GetHeight(), source.GetDepth());
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

/// A chain that begins at the kept picture, or at the source's pixels, and passes the wanted one.
struct IncrementalRenderer::Chain
{
    using Iterator = std::vector<StagePtr>::const_iterator;

    Chain(const std::vector<StagePtr>& stages, std::size_t kept, std::size_t wanted, Isa isa)
        : before(Slice(stages, kept, wanted), isa, GetSpaceAt(stages, kept)),
          after(Slice(stages, wanted, stages.size()), isa, GetSpaceAt(stages, wanted))
    {
    }

    static std::vector<StagePtr> Slice(const std::vector<StagePtr>& stages, std::size_t first,
                                       std::size_t end)
    {
        const Iterator begin = stages.begin();
        return {begin + static_cast<std::ptrdiff_t>(first),
                begin + static_cast<std::ptrdiff_t>(end)};
    }

    /// Behind so many stages; empty before the first.
    static std::optional<ColourSpace> GetSpaceAt(const std::vector<StagePtr>& stages,
                                                 std::size_t count)
    {
        if (count == 0)
            return std::nullopt;
        return stages[count - 1]->GetColourSpace();
    }

    StageChain before;
    StageChain after;
};

IncrementalRenderer::IncrementalRenderer(const Renderer& renderer, ThreadPool& pool)
    : m_renderer(renderer), m_pool(pool)
{
}

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
    m_skippedStages = 0;
    const int width = source.GetWidth();
    const int height = source.GetHeight();
    const auto area = options.area.value_or(PictureArea::Whole(width, height));
    if (!m_source.SharesPixelsWith(source) || !AreSameAreas(m_area, area))
        Clear();
    m_source = source;
    m_area = area;

    const Isa isa = LimitToSupported(options.isa);
    const std::size_t firstOther = FindFirstOther(effects.Effects());
    const EffectList same(effects.Effects().begin(),
                          effects.Effects().begin() + static_cast<std::ptrdiff_t>(firstOther));
    const bool isNew = m_effects.empty();
    m_effects = effects.Effects();
    const RenderPlan plan(effects.Effects(), {isa, area});
    const bool isPlain = isNew || source.IsNull() || !plan.GetPasses().empty() ||
                         ClampBlendAmount(effects.GetBlendAmount()) == SourceOnly ||
                         PlanarFrame::CountBytes(width, height) > LargestCache;
    const auto& stages = plan.GetFirstStages();
    const std::size_t wanted =
        isPlain ? 0 : FindSeam(stages, RenderPlan(same, {isa, area}).GetFirstStages().size());
    if (m_kept.count > wanted || FindSeam(stages, m_kept.count) != m_kept.count)
        m_kept.count = 0;
    if (wanted == 0)
        return m_renderer.Render(source, effects, options, std::move(recycled));

    m_skippedStages = m_kept.count;
    Image target = MakeTarget(source, std::move(recycled));
    const Chain chain(stages, m_kept.count, wanted, isa);
    if (!Run(chain, m_kept.count, wanted, source, target, GetSourceWeight(effects.GetBlendAmount()),
             options))
        return {};
    return target;
}

std::size_t IncrementalRenderer::FindFirstOther(const EffectList& effects) const
{
    const auto differing = std::mismatch(effects.begin(), effects.end(), m_effects.begin(),
                                         m_effects.end(), AreSameEffects);
    return static_cast<std::size_t>(differing.first - effects.begin());
}

bool IncrementalRenderer::Run(const Chain& chain, std::size_t kept, std::size_t wanted,
                              const Image& source, Image& target, double sourceWeight,
                              const RenderOptions& options)
{
    const PixelStep step(source.GetDepth(), LimitToSupported(options.isa),
                         chain.before.GetFirstSpace(), chain.after.GetLastSpace(), sourceWeight);
    const int width = source.GetWidth();
    const int height = source.GetHeight();
    const int tilePixels =
        std::clamp(options.tilePixels, Segment::SmallestTile, Segment::LargestTile);
    m_kept.frame.Resize(width, height);
    // Until all of it is there.
    m_kept.count = 0;
    const auto runRow = [&](Tile tile) {
        for (tile.x = 0; tile.x < width; tile.x += tilePixels) {
            tile.count = std::min(tilePixels, width - tile.x);
            if (kept > 0)
                m_kept.frame.Load(tile);
            else
                step.Load(tile, source.Row(tile.y));
            chain.before.Run(tile);
            if (wanted > kept)
                m_kept.frame.Store(tile);
            chain.after.Run(tile);
            step.Store(tile, source.Row(tile.y), target.Row(tile.y));
        }
    };
    const auto isCancelled = [&] { return options.cancel && options.cancel->IsCancelled(); };
    m_pool.ForEach(
        (height + Segment::BandRows - 1) / Segment::BandRows, options.threads, [&](int band) {
            const int end = std::min(height, (band + 1) * Segment::BandRows);
            Tile tile = GetTileOfThread();
            for (tile.y = band * Segment::BandRows; tile.y < end && !isCancelled(); ++tile.y)
                runRow(tile);
        });
    // A picture that was only read is as good as before.
    if (!isCancelled())
        m_kept.count = wanted;
    else if (wanted == kept)
        m_kept.count = kept;
    return !isCancelled();
}

} // namespace LumetraHost
