// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/contrast/ContrastEffect.h"

#include "engine/effects/MakeKind.h"
#include "engine/effects/contrast/ContrastKernel.h"
#include "engine/kernels/KernelSelection.h"
#include "engine/stages/KernelStage.h"
#include "image/Srgb.h"

#include <cmath>

namespace LumetraHost {
namespace {

// 0.18 * (c / 0.18)^e = 2^(e * log2(c) + (1 - e) * log2(0.18))
StagePtr CreateStage(const ContrastParameters& parameters, const StageContext& context)
{
    const double exponent = parameters.GetExponent();
    return MakeKernelStage(SelectKernel<ContrastKernel>(context.isa), ColourSpace::Linear,
                           ChannelWork::Heavy, static_cast<float>(exponent),
                           static_cast<float>((1 - exponent) * std::log2(MiddleGrey)));
}

} // namespace

double ContrastParameters::GetExponent() const
{
    return std::exp2(amount / 100);
}

EffectKind MakeContrastKind()
{
    return MakeKind(QT_TRANSLATE_NOOP("Effects", "Contrast"), CreateStage);
}

} // namespace LumetraHost
