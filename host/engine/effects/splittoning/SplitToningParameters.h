// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Quindle/EffectRegistry.h"
#include "Zorvik/Quindle/IEffectSettings.h"

#include <array>
#include <vector>

namespace LumetraHost {

/// Split toning: one hue goes into the shadows, another one into the highlights. On encoded values
/// c = c + 4 Y (1 - Y) * ((1 - w) * shadowTint + w * highlightTint), with the luma
/// Y = 0.2126 r + 0.7152 g + 0.0722 b limited to 0..1. A tint is saturation / 200 times the pure
/// colour of its hue less that colour's own luma: the luma of the photo stays, and so do black and
/// white. w rises by Hermite's 3t^2 - 2t^3 with t = Y - (0.5 - 0.4 * balance / 100) + 0.5 limited
/// to 0..1.
/// Sources: the pure colour of a hue, A. R. Smith, "Color Gamut Transform Pairs", SIGGRAPH 1978;
/// the step, Ebert et al., Texturing and Modeling; the luma, Rec. 709.
struct SplitToningParameters
{
    static constexpr char EffectId[] = "splitToning";

    double shadowHue = 0;           ///< 0 to 360 degrees: red, yellow, green, cyan, blue, magenta
    double shadowSaturation = 0;    ///< 0 to 100 per cent
    double highlightHue = 0;        ///< as shadowHue
    double highlightSaturation = 0; ///< 0 to 100 per cent
    double balance = 0;             ///< -100 (more shadows) to 100 (more highlights), per cent

    static const std::vector<Zorvik::Quindle::EffectParameter>& Describe();
    /// Clamped to the described ranges.
    static SplitToningParameters Read(const Zorvik::Quindle::IEffectSettings& settings);

    bool IsIdentity() const { return shadowSaturation == 0 && highlightSaturation == 0; }
    /// Red, green, blue of a tint; its luma is 0.
    static std::array<double, 3> GetTint(double hue, double saturation);
    /// The luma at which both tints weigh the same, 0.1 to 0.9.
    double GetPivot() const { return 0.5 - 0.4 * balance / 100; }
};

} // namespace LumetraHost
