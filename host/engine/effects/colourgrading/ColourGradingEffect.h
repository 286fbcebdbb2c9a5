// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/ParameterTable.h"

namespace LumetraHost {

struct EffectKind;

/// Colour grading: a tint and a luminance for shadows, mid-tones and highlights each, and for all
/// of them together. On encoded values c = c * f(Y) / Y + 4 Y (1 - Y) * sum of w_i * tint_i, with
/// the luma Y limited to 0..1, in the quotient to 1/4096..1.
///
/// Tints are those of split toning: saturation / 200 times the pure colour of the hue less its own
/// luma. They leave the luma of the photo, black and white. With the pivot
/// p = 0.5 - 0.4 * balance / 100 shadows weigh 1 - step((Y - p/2) / (b p) + 1/2), highlights
/// step((Y - (1 + p)/2) / (b (1 - p)) + 1/2), the mid-tones what is left to 1, and the global tint
/// 1 everywhere. b = 0.2 + 0.8 * blending / 100: at 100 shadows reach up to the pivot and
/// highlights down to it, at 0 ranges hardly overlap.
///
/// f is a monotone curve (see MonotoneCurve) through black, p/2, p, (1 + p)/2 and white. The three
/// inner points rise, per 100 of luminance of their range, by 0.2 p, 0.2 of the lesser of p and
/// 1 - p, and 0.2 (1 - p); the global luminance raises each of them as much once more. The order of
/// tones never turns, and hues and saturation stay, because all channels have the same factor.
///
/// Sources: the split into overlapping tonal ranges with a tint each, split toning; ASC CDL 1.2 for
/// the three ranges and the luma-keeping change; Ebert et al., Texturing and Modeling, for the
/// step. The widths and amounts are ours.
struct ColourGradingParameters
{
    static constexpr char EffectId[] = "colourGrading";

    double shadowHue = 0; ///< every 60 degrees: red, yellow, green, cyan, blue, magenta
    double shadowSaturation = 0;
    double shadowLuminance = 0;
    double midtoneHue = 0;
    double midtoneSaturation = 0;
    double midtoneLuminance = 0;
    double highlightHue = 0;
    double highlightSaturation = 0;
    double highlightLuminance = 0;
    double globalHue = 0;
    double globalSaturation = 0;
    double globalLuminance = 0;
    double blending = 50; ///< how far the ranges overlap
    double balance = 0;   ///< -100 gives more to the shadows, 100 to the highlights

    static constexpr ParameterRow<ColourGradingParameters> Table[] = {
        {"shadowHue", &ColourGradingParameters::shadowHue, 0, 360, "°"},
        {"shadowSaturation", &ColourGradingParameters::shadowSaturation, 0, 100, "%"},
        {"shadowLuminance", &ColourGradingParameters::shadowLuminance, -100, 100, "%"},
        {"midtoneHue", &ColourGradingParameters::midtoneHue, 0, 360, "°"},
        {"midtoneSaturation", &ColourGradingParameters::midtoneSaturation, 0, 100, "%"},
        {"midtoneLuminance", &ColourGradingParameters::midtoneLuminance, -100, 100, "%"},
        {"highlightHue", &ColourGradingParameters::highlightHue, 0, 360, "°"},
        {"highlightSaturation", &ColourGradingParameters::highlightSaturation, 0, 100, "%"},
        {"highlightLuminance", &ColourGradingParameters::highlightLuminance, -100, 100, "%"},
        {"globalHue", &ColourGradingParameters::globalHue, 0, 360, "°"},
        {"globalSaturation", &ColourGradingParameters::globalSaturation, 0, 100, "%"},
        {"globalLuminance", &ColourGradingParameters::globalLuminance, -100, 100, "%"},
        {"blending", &ColourGradingParameters::blending, 0, 100, "%"},
        {"balance", &ColourGradingParameters::balance, -100, 100, "%"}};

    bool IsIdentity() const;
    /// The luma of the mid-tones, 0.1 to 0.9.
    double GetPivot() const { return 0.5 - 0.4 * balance / 100; }
    /// How much of the way between the ranges is a transition, 0.2 to 1.
    double GetOverlap() const { return 0.2 + 0.8 * blending / 100; }
};

EffectKind MakeColourGradingKind();

} // namespace LumetraHost
