// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/gaussianblur/GaussianBlurEffect.h"

#include "engine/effects/gaussianblur/GaussianBlurParameters.h"
#include "engine/effects/gaussianblur/GaussianBlurPass.h"

namespace LumetraHost {
namespace {

StagePtr CreateNoStage(const Zorvik::Quindle::IEffectSettings&, const StageContext&)
{
    return nullptr;
}

SpatialPassPtr CreateGaussianBlurPass(const Zorvik::Quindle::IEffectSettings& settings,
                                      const StageContext& context)
{
    const auto parameters = GaussianBlurParameters::Read(settings);
    if (parameters.IsIdentity())
        return nullptr;
    return std::make_shared<GaussianBlurPass>(parameters, context);
}

} // namespace

EffectKind MakeGaussianBlurKind()
{
    return {{GaussianBlurParameters::EffectId, GaussianBlurParameters::Describe(), {}},
            CreateNoStage,
            EffectReach::Spatial,
            CreateGaussianBlurPass};
}

} // namespace LumetraHost
