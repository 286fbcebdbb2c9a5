// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/ParameterTable.h"

namespace LumetraHost {

struct EffectKind;

/// Split toning: one hue goes into the shadows, another one into the highlights. On encoded values
/// c = c + 4 Y (1 - Y) * ((1 - w) * shadowTint + w * highlightTint), with the luma Y limited to
/// 0..1. A tint is saturation / 200 times the pure colour of its hue less that colour's own luma:
/// the luma of the photo stays, and so do black and white. w rises by Hermite's 3t^2 - 2t^3 with
/// t = Y - (0.5 - 0.4 * balance / 100) + 0.5 limited to 0..1.
/// Sources: the pure colour of a hue, A. R. Smith, "Color Gamut Transform Pairs", SIGGRAPH 1978;
/// the step, Ebert et al., Texturing and Modeling; the luma, Rec. 709.
struct SplitToningParameters
{
    static constexpr char EffectId[] = "splitToning";

    double shadowHue = 0; ///< every 60 degrees: red, yellow, green, cyan, blue, magenta
    double shadowSaturation = 0;
    double highlightHue = 0;
    double highlightSaturation = 0;
    double balance = 0; ///< -100 gives more to the shadows, 100 to the highlights

    static constexpr ParameterRow<SplitToningParameters> Table[] = {
        {"shadowHue", &SplitToningParameters::shadowHue, 0, 360, "°"},
        {"shadowSaturation", &SplitToningParameters::shadowSaturation, 0, 100, "%"},
        {"highlightHue", &SplitToningParameters::highlightHue, 0, 360, "°"},
        {"highlightSaturation", &SplitToningParameters::highlightSaturation, 0, 100, "%"},
        {"balance", &SplitToningParameters::balance, -100, 100, "%"}};

    bool IsIdentity() const { return shadowSaturation == 0 && highlightSaturation == 0; }
    /// The luma at which both tints weigh the same, 0.1 to 0.9.
    double GetPivot() const { return 0.5 - 0.4 * balance / 100; }
};

EffectKind MakeSplitToningKind();

} // namespace LumetraHost
