// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/sharpen/SharpenEffect.h"

#include "engine/effects/sharpen/SharpenParameters.h"
#include "engine/effects/sharpen/SharpenPass.h"

namespace LumetraHost {
namespace {

StagePtr CreateNoStage(const Zorvik::Quindle::IEffectSettings&, const StageContext&)
{
    return nullptr;
}

SpatialPassPtr CreateSharpenPass(const Zorvik::Quindle::IEffectSettings& settings,
                                 const StageContext& context)
{
    const auto parameters = SharpenParameters::Read(settings);
    if (parameters.IsIdentity())
        return nullptr;
    return std::make_shared<SharpenPass>(parameters, context);
}

} // namespace

EffectKind MakeSharpenKind()
{
    return {{SharpenParameters::EffectId, SharpenParameters::Describe(), {}},
            CreateNoStage,
            EffectReach::Spatial,
            CreateSharpenPass};
}

} // namespace LumetraHost
