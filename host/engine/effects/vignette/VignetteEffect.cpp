// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/vignette/VignetteEffect.h"

#include "engine/effects/vignette/VignetteParameters.h"
#include "engine/effects/vignette/VignetteStage.h"

namespace LumetraHost {
namespace {

StagePtr CreateVignetteStage(const Zorvik::Quindle::IEffectSettings& settings,
                             const StageContext& context)
{
    const auto parameters = VignetteParameters::Read(settings);
    if (parameters.IsIdentity())
        return nullptr;
    return std::make_shared<VignetteStage>(parameters, context);
}

} // namespace

EffectKind MakeVignetteKind()
{
    return {{VignetteParameters::EffectId, VignetteParameters::Describe(), {}},
            CreateVignetteStage,
            EffectReach::Positional};
}

} // namespace LumetraHost
