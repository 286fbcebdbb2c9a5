// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/vibrance/VibranceEffect.h"

#include "engine/effects/vibrance/VibranceKernel.h"
#include "engine/effects/vibrance/VibranceParameters.h"
#include "engine/kernels/KernelSelection.h"
#include "engine/stages/NumbersStage.h"

namespace LumetraHost {
namespace {

StagePtr CreateVibranceStage(const Zorvik::Quindle::IEffectSettings& settings,
                             const StageContext& context)
{
    const auto parameters = VibranceParameters::Read(settings);
    if (parameters.IsIdentity())
        return nullptr;
    return std::make_shared<NumbersStage<float>>(ColourSpace::Linear,
                                                 static_cast<float>(parameters.amount / 100),
                                                 SelectKernel<VibranceKernel>(context.isa));
}

} // namespace

EffectKind MakeVibranceKind()
{
    return {{VibranceParameters::EffectId, VibranceParameters::Describe(), {}},
            CreateVibranceStage};
}

} // namespace LumetraHost
