// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/saturation/SaturationEffect.h"

#include "engine/effects/saturation/SaturationParameters.h"
#include "engine/stages/MatrixStage.h"

namespace LumetraHost {
namespace {

StagePtr CreateSaturationStage(const Zorvik::Quindle::IEffectSettings& settings,
                               const StageContext& context)
{
    const auto parameters = SaturationParameters::Read(settings);
    if (parameters.IsIdentity())
        return nullptr;
    return std::make_shared<MatrixStage>(parameters.GetMatrix(), ColourSpace::Encoded, context.isa);
}

} // namespace

EffectKind MakeSaturationKind()
{
    return {{SaturationParameters::EffectId, SaturationParameters::Describe(), {}},
            CreateSaturationStage};
}

} // namespace LumetraHost
