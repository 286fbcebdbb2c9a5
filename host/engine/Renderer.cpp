// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/Renderer.h"

#include "engine/Blend.h"
#include "engine/EffectKinds.h"
#include "engine/Segment.h"

#include "Zorvik/Exception.h"
#include "Zorvik/Proc/SettingsEffectEmpty.h"

#include <boost/current_function.hpp>

#include <algorithm>
#include <utility>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectList;
using Zorvik::Quindle::EffectPtr;

std::vector<StagePtr> CreateStages(const EffectList& effects, const StageContext& context)
{
    std::vector<StagePtr> stages;
    for (const EffectPtr& effect : effects) {
        const EffectKind* const kind = effect ? EffectKinds::Find(effect->GetEffectID()) : nullptr;
        if (auto stage = kind ? kind->createStage(*effect, context) : nullptr)
            stages.push_back(std::move(stage));
    }
    return stages;
}

bool HaveSameForm(const Image& first, const Image& second)
{
    return first.GetWidth() == second.GetWidth() && first.GetHeight() == second.GetHeight() &&
           first.GetDepth() == second.GetDepth();
}

Image MakeTarget(const Image& source, Image recycled)
{
    if (HaveSameForm(source, recycled) && recycled.IsSoleOwner())
        return recycled;
    return Image::AllocateUninitialised(source.GetWidth(), source.GetHeight(), source.GetDepth());
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
    const Isa isa = LimitToSupported(options.isa);
    const auto area =
        options.area.value_or(PictureArea::Whole(source.GetWidth(), source.GetHeight()));
    const auto stages = CreateStages(effects, {isa, area});
    if (stages.empty())
        return source;

    const Segment segment(stages, {isa, options.threads, options.tilePixels, options.cancel});
    Image target = MakeTarget(source, std::move(recycled));
    if (!segment.Run(source, target, GetSourceWeight(blendAmount), *m_pool))
        return {};
    return target;
}

Image Renderer::Interpolate(const Image& source, const Image& effect, int blendAmount,
                            const RenderOptions& options, Image recycled) const
{
    if (!HaveSameForm(source, effect))
        throw Zorvik::Exception("blend of two pictures: expected the same size and depth",
                                BOOST_CURRENT_FUNCTION, "engine/Renderer", __LINE__);
    if (ClampBlendAmount(blendAmount) == SourceOnly || source.SharesPixelsWith(effect))
        return source;
    if (ClampBlendAmount(blendAmount) == FullEffect)
        return effect;
    Image target = MakeTarget(source, std::move(recycled));
    Blend(source, effect, blendAmount, target, LimitToSupported(options.isa), options.threads,
          *m_pool);
    return target;
}

std::vector<std::string> Renderer::FindUnknownEffects(const EffectList& effects)
{
    std::vector<std::string> unknown;
    for (const EffectPtr& effect : effects) {
        if (!effect || effect->GetEffectID() == Zorvik::Proc::SettingsEffectEmpty::EFFECT_ID ||
            EffectKinds::Find(effect->GetEffectID()))
            continue;
        if (std::find(unknown.begin(), unknown.end(), effect->GetEffectID()) == unknown.end())
            unknown.push_back(effect->GetEffectID());
    }
    return unknown;
}

} // namespace LumetraHost
