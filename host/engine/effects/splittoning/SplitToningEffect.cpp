// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/splittoning/SplitToningEffect.h"

#include "engine/effects/splittoning/SplitToningKernel.h"
#include "engine/effects/splittoning/SplitToningParameters.h"
#include "engine/kernels/KernelSelection.h"
#include "engine/stages/NumbersStage.h"

namespace LumetraHost {
namespace {

SplitToningNumbers GetNumbers(const SplitToningParameters& parameters)
{
    const auto shadow =
        SplitToningParameters::GetTint(parameters.shadowHue, parameters.shadowSaturation);
    const auto highlight =
        SplitToningParameters::GetTint(parameters.highlightHue, parameters.highlightSaturation);
    SplitToningNumbers numbers;
    for (std::size_t i = 0; i < 3; ++i) {
        numbers.shadow[i] = static_cast<float>(shadow[i]);
        numbers.highlight[i] = static_cast<float>(highlight[i]);
    }
    numbers.pivot = static_cast<float>(parameters.GetPivot());
    return numbers;
}

StagePtr CreateSplitToningStage(const Zorvik::Quindle::IEffectSettings& settings,
                                const StageContext& context)
{
    const auto parameters = SplitToningParameters::Read(settings);
    if (parameters.IsIdentity())
        return nullptr;
    return std::make_shared<NumbersStage<SplitToningNumbers>>(
        ColourSpace::Encoded, GetNumbers(parameters), SelectKernel<SplitToningKernel>(context.isa));
}

} // namespace

EffectKind MakeSplitToningKind()
{
    return {{SplitToningParameters::EffectId, SplitToningParameters::Describe(), {}},
            CreateSplitToningStage};
}

} // namespace LumetraHost
