// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/clarity/ClarityEffect.h"

#include "engine/effects/clarity/ClarityParameters.h"
#include "engine/effects/clarity/ClarityPass.h"

namespace LumetraHost {
namespace {

StagePtr CreateNoStage(const Zorvik::Quindle::IEffectSettings&, const StageContext&)
{
    return nullptr;
}

SpatialPassPtr CreateClarityPass(const Zorvik::Quindle::IEffectSettings& settings,
                                 const StageContext& context)
{
    const auto parameters = ClarityParameters::Read(settings);
    if (parameters.IsIdentity())
        return nullptr;
    return std::make_shared<ClarityPass>(parameters, context);
}

} // namespace

EffectKind MakeClarityKind()
{
    return {{ClarityParameters::EffectId, ClarityParameters::Describe(), {}},
            CreateNoStage,
            EffectReach::Spatial,
            CreateClarityPass};
}

} // namespace LumetraHost
