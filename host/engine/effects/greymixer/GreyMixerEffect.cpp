// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/greymixer/GreyMixerEffect.h"

#include "engine/effects/MakeKind.h"
#include "engine/effects/greymixer/GreyMixerKernel.h"
#include "engine/kernels/KernelSelection.h"
#include "engine/stages/KernelStage.h"

#include <array>

namespace LumetraHost {
namespace {

constexpr double LightAtHundred = 0.75;

GreyMixerNumbers GetNumbers(const GreyMixerParameters& p)
{
    std::array<double, HueCircle::Hues> amounts = {p.red,  p.orange, p.yellow, p.green,
                                                   p.aqua, p.blue,   p.purple, p.magenta};
    for (double& amount : amounts)
        amount *= LightAtHundred / 100;
    return {static_cast<float>(p.amount / 100), MakeHueAmounts(amounts)};
}

StagePtr CreateStage(const GreyMixerParameters& parameters, const StageContext& context)
{
    return MakeKernelStage(SelectKernel<GreyMixerKernel>(context.isa), ColourSpace::Encoded,
                           ChannelWork::Mixed, GetNumbers(parameters));
}

} // namespace

EffectKind MakeGreyMixerKind()
{
    return MakeKind(QT_TRANSLATE_NOOP("Effects", "Grey mixer"), CreateStage);
}

} // namespace LumetraHost
