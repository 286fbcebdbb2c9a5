// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/grain/GrainEffect.h"

#include "engine/effects/grain/GrainParameters.h"
#include "engine/effects/grain/GrainStage.h"

namespace LumetraHost {
namespace {

StagePtr CreateGrainStage(const Zorvik::Quindle::IEffectSettings& settings,
                          const StageContext& context)
{
    const auto parameters = GrainParameters::Read(settings);
    if (parameters.IsIdentity())
        return nullptr;
    return std::make_shared<GrainStage>(parameters, context);
}

} // namespace

EffectKind MakeGrainKind()
{
    return {{GrainParameters::EffectId, GrainParameters::Describe(), {}},
            CreateGrainStage,
            EffectReach::Positional};
}

} // namespace LumetraHost
