// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/liftgammagain/LiftGammaGainEffect.h"

#include "engine/effects/MakeKind.h"
#include "engine/effects/liftgammagain/LiftGammaGainKernel.h"
#include "engine/kernels/KernelSelection.h"
#include "engine/stages/KernelStage.h"

namespace LumetraHost {
namespace {

constexpr LiftGammaGainParameters::Channels AllZero = {0, 0, 0};
constexpr LiftGammaGainParameters::Channels AllOne = {1, 1, 1};

LiftGammaGainNumbers GetNumbers(const LiftGammaGainParameters& parameters)
{
    LiftGammaGainNumbers numbers;
    for (std::size_t i = 0; i < 3; ++i) {
        numbers.slope[i] = static_cast<float>(parameters.GetSlope()[i]);
        numbers.offset[i] = static_cast<float>(parameters.GetOffset()[i]);
        numbers.power[i] = static_cast<float>(parameters.GetPower()[i]);
    }
    numbers.saturation = static_cast<float>(parameters.saturation);
    numbers.hasPower = parameters.HasPower();
    numbers.clamp = parameters.Clamps();
    return numbers;
}

ChannelWork GetWork(const LiftGammaGainNumbers& numbers)
{
    if (numbers.saturation != 1.0f)
        return ChannelWork::Mixed;
    return numbers.hasPower ? ChannelWork::Heavy : ChannelWork::Light;
}

StagePtr CreateStage(const LiftGammaGainParameters& parameters, const StageContext& context)
{
    const LiftGammaGainNumbers numbers = GetNumbers(parameters);
    return MakeKernelStage(SelectKernel<LiftGammaGainKernel>(context.isa), ColourSpace::Encoded,
                           GetWork(numbers), numbers);
}

} // namespace

bool LiftGammaGainParameters::IsIdentity() const
{
    return GetSlope() == AllOne && GetOffset() == AllZero && !HasPower() && saturation == 1;
}

bool LiftGammaGainParameters::HasPower() const
{
    return GetPower() != AllOne;
}

EffectKind MakeLiftGammaGainKind()
{
    return MakeKind(QT_TRANSLATE_NOOP("Effects", "Lift, gamma, gain"), CreateStage);
}

} // namespace LumetraHost
