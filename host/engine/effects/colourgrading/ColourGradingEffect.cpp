// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/colourgrading/ColourGradingEffect.h"

#include "engine/base/MonotoneCurve.h"
#include "engine/base/PureColour.h"
#include "engine/effects/MakeKind.h"
#include "engine/effects/colourgrading/ColourGradingKernel.h"
#include "engine/kernels/KernelSelection.h"
#include "engine/stages/KernelStage.h"

#include <algorithm>
#include <cstddef>

namespace LumetraHost {
namespace {

using Parameters = ColourGradingParameters;

constexpr double RiseAtHundred = 0.2;

/// Maps luma to luma.
MonotoneCurve GetCurve(const Parameters& grading)
{
    const double pivot = grading.GetPivot();
    const auto rise = [&](double luminance, double width) {
        return RiseAtHundred * width * (luminance + grading.globalLuminance) / 100;
    };
    const double shadow = pivot / 2;
    const double highlight = (1 + pivot) / 2;
    return MonotoneCurve::Make(
        {{0, 0},
         {shadow, shadow + rise(grading.shadowLuminance, pivot)},
         {pivot, pivot + rise(grading.midtoneLuminance, std::min(pivot, 1 - pivot))},
         {highlight, highlight + rise(grading.highlightLuminance, 1 - pivot)},
         {1, 1}});
}

void SetCurve(const MonotoneCurve& curve, ColourGradingNumbers& numbers)
{
    const auto& pieces = curve.GetPieces();
    for (std::size_t i = 0; i < ColourGradingNumbers::Pieces; ++i) {
        numbers.start[i] = static_cast<float>(pieces[i].start.x);
        numbers.width[i] = static_cast<float>(pieces[i].width);
        numbers.linear[i] = static_cast<float>(pieces[i].linear);
        numbers.square[i] = static_cast<float>(pieces[i].square);
        numbers.cube[i] = static_cast<float>(pieces[i].cube);
    }
}

/// The global tint belongs to every range, as the weights of the ranges add up to 1.
void SetTint(const Parameters& grading, double hue, double saturation, float* tint)
{
    const auto own = GetTint(hue, saturation / 200);
    const auto global = GetTint(grading.globalHue, grading.globalSaturation / 200);
    for (std::size_t i = 0; i < 3; ++i)
        tint[i] = static_cast<float>(own[i] + global[i]);
}

ColourGradingNumbers GetNumbers(const Parameters& grading)
{
    const double pivot = grading.GetPivot(), overlap = grading.GetOverlap();
    ColourGradingNumbers numbers;
    numbers.shadowScale = static_cast<float>(1 / (overlap * pivot));
    numbers.shadowBegin = static_cast<float>(pivot / 2 * (1 - overlap));
    numbers.highlightScale = static_cast<float>(1 / (overlap * (1 - pivot)));
    numbers.highlightBegin = static_cast<float>(pivot + (1 - pivot) / 2 * (1 - overlap));
    SetTint(grading, grading.shadowHue, grading.shadowSaturation, numbers.shadow);
    SetTint(grading, grading.midtoneHue, grading.midtoneSaturation, numbers.midtone);
    SetTint(grading, grading.highlightHue, grading.highlightSaturation, numbers.highlight);
    SetCurve(GetCurve(grading), numbers);
    return numbers;
}

StagePtr CreateStage(const Parameters& parameters, const StageContext& context)
{
    return MakeKernelStage(SelectKernel<ColourGradingKernel>(context.isa), ColourSpace::Encoded,
                           ChannelWork::Mixed, GetNumbers(parameters));
}

} // namespace

bool ColourGradingParameters::IsIdentity() const
{
    return shadowSaturation == 0 && shadowLuminance == 0 && midtoneSaturation == 0 &&
           midtoneLuminance == 0 && highlightSaturation == 0 && highlightLuminance == 0 &&
           globalSaturation == 0 && globalLuminance == 0;
}

EffectKind MakeColourGradingKind()
{
    return MakeKind(QT_TRANSLATE_NOOP("Effects", "Colour grading"), CreateStage);
}

} // namespace LumetraHost
