// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/exposure/ExposureEffect.h"

#include "engine/effects/exposure/ExposureParameters.h"
#include "engine/stages/MatrixStage.h"

namespace LumetraHost {
namespace {

StagePtr CreateExposureStage(const Zorvik::Quindle::IEffectSettings& settings,
                             const StageContext& context)
{
    const auto parameters = ExposureParameters::Read(settings);
    if (parameters.IsIdentity())
        return nullptr;
    return std::make_shared<MatrixStage>(parameters.GetMatrix(), ColourSpace::Linear, context.isa);
}

} // namespace

EffectKind MakeExposureKind()
{
    return {{ExposureParameters::EffectId, ExposureParameters::Describe(), {}},
            CreateExposureStage};
}

} // namespace LumetraHost
