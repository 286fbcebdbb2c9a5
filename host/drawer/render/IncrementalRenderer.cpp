// SPDX-License-Identifier: GPL-2.0-or-later
#include "drawer/render/IncrementalRenderer.h"

#include "drawer/stack/SameEffects.h"

#include "engine/run/Blend.h"
#include "engine/run/PixelStep.h"
#include "engine/run/RenderPlan.h"
#include "engine/run/Segment.h"

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

bool IsOfChannels(const Stage& stage)
{
    return stage.GetChannelWork() != ChannelWork::Mixed;
}

/// Whether a chain makes, or may make, one stage of them.
bool AreMerged(const Stage& first, const Stage& second, Image::Depth depth)
{
    if (depth == Image::Depth::Bits8 && IsOfChannels(first) && IsOfChannels(second))
        return true;
    return first.GetMatrix() && second.GetMatrix() &&
           first.GetColourSpace() == second.GetColourSpace();
}

/// Whether a chain makes, or may make, one step of the two stages before and behind that place, or
/// of the last one and of storing it.
bool IsInsideStep(const std::vector<StagePtr>& stages, std::size_t place, Image::Depth depth)
{
    const Stage& before = *stages[place - 1];
    return place == stages.size() ? depth == Image::Depth::Bits8 && IsOfChannels(before)
                                  : AreMerged(before, *stages[place], depth);
}

/// The last place up to `wish` that no such step lies across.
std::size_t FindSeam(const std::vector<StagePtr>& stages, std::size_t wish, Image::Depth depth)
{
    std::size_t seam = std::min(wish, stages.size());
    while (seam > 0 && IsInsideStep(stages, seam, depth))
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

/// A chain that begins at the kept picture, or at the source's pixels, and passes the place whose
/// picture is to be kept.
struct IncrementalRenderer::Chain
{
    Chain(const std::vector<StagePtr>& stages, std::size_t keptCount,
          std::optional<ColourSpace> keptSpace, std::size_t wantedCount, Isa isa,
          Image::Depth depth, ChainEnd end)
        : kept(keptCount), wanted(wantedCount), wantedSpace(GetSpaceAt(stages, wantedCount, depth)),
          before(Slice(stages, kept, wanted), isa, depth, keptSpace, wantedSpace),
          after(Slice(stages, wanted, stages.size()), isa, depth, wantedSpace, {}, end),
          isKeptAgain(wanted > kept || keptSpace != wantedSpace)
    {
    }

    static std::vector<StagePtr> Slice(const std::vector<StagePtr>& stages, std::size_t first,
                                       std::size_t end)
    {
        const auto begin = stages.begin();
        return {begin + static_cast<std::ptrdiff_t>(first),
                begin + static_cast<std::ptrdiff_t>(end)};
    }

    /// The space behind so many stages in which nothing is cut through that is one stage in the
    /// whole chain: a conversion belongs to the stage that takes each channel alone.
    static ColourSpace GetSpaceAt(const std::vector<StagePtr>& stages, std::size_t count,
                                  Image::Depth depth)
    {
        if (count == stages.size())
            return StageChain::ChooseLastSpace(stages, depth, true);
        const bool isConvertedLater = depth == Image::Depth::Bits8 && IsOfChannels(*stages[count]);
        return stages[isConvertedLater ? count - 1 : count]->GetColourSpace();
    }

    std::size_t kept;
    std::size_t wanted;
    ColourSpace wantedSpace;
    StageChain before;
    StageChain after;
    bool isKeptAgain;
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
    const StageContext context{isa, area, source.GetDepth()};
    const RenderPlan plan(effects.Effects(), context);
    const bool isPlain = isNew || source.IsNull() || !plan.GetPasses().empty() ||
                         ClampBlendAmount(effects.GetBlendAmount()) == SourceOnly ||
                         PlanarFrame::CountBytes(width, height) > LargestCache;
    const auto& stages = plan.GetFirstStages();
    const std::size_t wanted =
        isPlain ? 0
                : FindSeam(stages, RenderPlan(same, context).GetFirstStages().size(),
                           source.GetDepth());
    if (!CanStartFrom(stages, wanted, source.GetDepth()))
        m_kept.count = 0;
    if (wanted == 0)
        return m_renderer.Render(source, effects, options, std::move(recycled));

    m_skippedStages = m_kept.count;
    Image target = MakeTarget(source, std::move(recycled));
    const auto keptSpace = m_kept.count > 0 ? std::optional(m_kept.space) : std::nullopt;
    const double sourceWeight = GetSourceWeight(effects.GetBlendAmount());
    const Chain chain(stages, m_kept.count, keptSpace, wanted, isa, source.GetDepth(),
                      PixelStep::GetEnd(sourceWeight));
    if (!Run(chain, source, target, sourceWeight, options))
        return {};
    return target;
}

/// Whether no merged stage and no conversion would come out differently.
bool IncrementalRenderer::CanStartFrom(const std::vector<StagePtr>& stages, std::size_t wanted,
                                       Image::Depth depth) const
{
    const std::size_t count = m_kept.count;
    if (count == 0 || count > wanted || FindSeam(stages, count, depth) != count)
        return false;
    if (m_kept.space == Chain::GetSpaceAt(stages, count, depth))
        return true;
    return depth != Image::Depth::Bits8 && m_kept.space == stages[count - 1]->GetColourSpace();
}

std::size_t IncrementalRenderer::FindFirstOther(const EffectList& effects) const
{
    const auto differing = std::mismatch(effects.begin(), effects.end(), m_effects.begin(),
                                         m_effects.end(), AreSameEffects);
    return static_cast<std::size_t>(differing.first - effects.begin());
}

bool IncrementalRenderer::Run(const Chain& chain, const Image& source, Image& target,
                              double sourceWeight, const RenderOptions& options)
{
    const PixelStep step(source.GetDepth(), LimitToSupported(options.isa), chain.before,
                         chain.after, sourceWeight);
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
            if (chain.kept > 0)
                m_kept.frame.Load(tile);
            else
                step.Load(tile, source.Row(tile.y));
            chain.before.Run(tile);
            if (chain.isKeptAgain)
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
    const bool isFinished = !isCancelled();
    if (isFinished || !chain.isKeptAgain)
        m_kept.count = chain.wanted;
    if (isFinished && chain.isKeptAgain)
        m_kept.space = chain.wantedSpace;
    return isFinished;
}

} // namespace LumetraHost
