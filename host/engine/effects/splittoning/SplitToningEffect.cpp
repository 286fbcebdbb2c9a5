// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/splittoning/SplitToningEffect.h"

#include "engine/effects/MakeKind.h"
#include "engine/effects/splittoning/SplitToningKernel.h"
#include "engine/kernels/KernelSelection.h"
#include "engine/stages/KernelStage.h"
#include "image/Srgb.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace LumetraHost {
namespace {

/// Red, green and blue of a tint; its luma is 0.
std::array<double, 3> GetTint(double hue, double saturation)
{
    const double sector = hue / 60;
    const double red = std::clamp(std::abs(sector - 3) - 1, 0.0, 1.0);
    const double green = std::clamp(2 - std::abs(sector - 2), 0.0, 1.0);
    const double blue = std::clamp(2 - std::abs(sector - 4), 0.0, 1.0);
    const double luma = LumaRed * red + LumaGreen * green + LumaBlue * blue;
    const double strength = saturation / 200;
    return {strength * (red - luma), strength * (green - luma), strength * (blue - luma)};
}

SplitToningNumbers GetNumbers(const SplitToningParameters& parameters)
{
    const auto shadow = GetTint(parameters.shadowHue, parameters.shadowSaturation);
    const auto highlight = GetTint(parameters.highlightHue, parameters.highlightSaturation);
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
