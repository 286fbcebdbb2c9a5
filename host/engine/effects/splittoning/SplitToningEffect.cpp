// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/splittoning/SplitToningEffect.h"

#include "engine/base/PureColour.h"
#include "engine/effects/MakeKind.h"
#include "engine/effects/splittoning/SplitToningKernel.h"
#include "engine/kernels/KernelSelection.h"
#include "engine/stages/KernelStage.h"
#include "image/Srgb.h"

#include <cstddef>

namespace LumetraHost {
namespace {

SplitToningNumbers GetNumbers(const SplitToningParameters& parameters)
{
    const auto shadow = GetTint(parameters.shadowHue, parameters.shadowSaturation / 200);
    const auto highlight = GetTint(parameters.highlightHue, parameters.highlightSaturation / 200);
    SplitToningNumbers numbers;
    for (std::size_t i = 0; i < 3; ++i) {
        numbers.shadow[i] = static_cast<float>(shadow[i]);
        numbers.highlight[i] = static_cast<float>(highlight[i]);
    }
    numbers.pivot = static_cast<float>(parameters.GetPivot());
    return numbers;
}

StagePtr CreateStage(const SplitToningParameters& parameters, const StageContext& context)
{
    return MakeKernelStage(SelectKernel<SplitToningKernel>(context.isa), ColourSpace::Encoded,
                           ChannelWork::Mixed, GetNumbers(parameters));
}

} // namespace

EffectKind MakeSplitToningKind()
{
    return MakeKind(QT_TRANSLATE_NOOP("Effects", "Split toning"), CreateStage);
}

} // namespace LumetraHost
