// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/saturation/SaturationEffect.h"

#include "engine/matrix/MatrixStage.h"
#include "engine/saturation/SaturationParameters.h"

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
