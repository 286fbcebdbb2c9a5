// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/liftgammagain/LiftGammaGainEffect.h"

#include "engine/effects/liftgammagain/LiftGammaGainKernel.h"
#include "engine/effects/liftgammagain/LiftGammaGainParameters.h"
#include "engine/kernels/KernelSelection.h"
#include "engine/stages/NumbersStage.h"

namespace LumetraHost {
namespace {

LiftGammaGainNumbers GetNumbers(const LiftGammaGainParameters& parameters)
{
    LiftGammaGainNumbers numbers;
    for (std::size_t i = 0; i < 3; ++i) {
        numbers.slope[i] = static_cast<float>(parameters.slope[i]);
        numbers.offset[i] = static_cast<float>(parameters.offset[i]);
        numbers.power[i] = static_cast<float>(parameters.power[i]);
    }
    numbers.saturation = static_cast<float>(parameters.saturation);
    numbers.hasPower = parameters.HasPower();
    numbers.clamp = parameters.clamp;
    return numbers;
}

ChannelWork GetWork(const LiftGammaGainNumbers& numbers)
{
    if (numbers.saturation != 1.0f)
        return ChannelWork::Mixed;
    return numbers.hasPower ? ChannelWork::Heavy : ChannelWork::Light;
}

StagePtr CreateLiftGammaGainStage(const Zorvik::Quindle::IEffectSettings& settings,
                                  const StageContext& context)
{
    const auto parameters = LiftGammaGainParameters::Read(settings);
    if (parameters.IsIdentity())
        return nullptr;
    const LiftGammaGainNumbers numbers = GetNumbers(parameters);
    return std::make_shared<NumbersStage<LiftGammaGainNumbers>>(
        ColourSpace::Encoded, numbers, SelectKernel<LiftGammaGainKernel>(context.isa),
        GetWork(numbers));
}

} // namespace

EffectKind MakeLiftGammaGainKind()
{
    return {{LiftGammaGainParameters::EffectId, LiftGammaGainParameters::Describe(), {}},
            CreateLiftGammaGainStage};
}

} // namespace LumetraHost
