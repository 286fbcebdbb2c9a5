// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/HueCircle.h"
#include "engine/base/ParameterTable.h"

#include <array>

namespace LumetraHost {

struct EffectKind;

/// Colour mixer: hue, saturation and luminance of eight hues, each on its own. The hues lie at
/// 0 (red), 30 (orange), 60 (yellow), 120 (green), 180 (aqua), 240 (blue), 270 (purple) and
/// 300 (magenta) degrees. A colour belongs to the two hues that it lies between, with weights that
/// add up to 1: Hermite's step 3t^2 - 2t^3 from one to the other. The parameters are named after
/// the hue: redHue, redSaturation, redLuminance, and so on.
///
/// The model is hue, chroma and luma of the encoded values: c = m + C * P(h), where m is the least
/// channel, C the largest less the least, and P(h) the pure colour of the hue. Hues are turned and
/// chroma is scaled around the luma Y, which stays; only k changes it:
/// c' = k * (Y + C' * (P(h') - luma of P(h'))).
/// A turned hue is thus as light as it was, as it would not be in HSL or HSV. All changes fade with
/// C, so that greys stay what they are; perceptual models, whose angles mean nothing near grey,
/// need a threshold for that.
///
/// With the weighted amounts a_h, a_s and a_l, in -1..1, and S = C / (0.1 + the largest absolute
/// channel) limited to 0..1:
/// - h' = h + 30 degrees * a_h. Shifts of neighbours that would turn the order of hues around are
///   brought together, by as much on both sides, until the hues keep a twentieth of their distance.
/// - C' = C * (1 + a_s) below zero, C * (1 + a_s * (1 - S)) above: pure colours stay in range.
/// - k = 2^(0.6 * a_l * step(2 S)), about one and a half stops of light.
///
/// Sources: the pure colour of a hue and S, A. R. Smith, "Color Gamut Transform Pairs", SIGGRAPH
/// 1978; luma, chroma and hue as one model, A. Hanbury, "A 3D-Polar Coordinate Colour
/// Representation Well Adapted to Image Analysis", SCIA 2003; the luma, Rec. 709; the step, Ebert
/// et al., Texturing and Modeling. The amounts are ours.
struct ColourMixerParameters
{
    static constexpr char EffectId[] = "colourMixer";

    /// One hue; every number is in per cent, -100 to 100.
    struct Band
    {
        double hue = 0; ///< positive towards the next hue: from red to orange
        double saturation = 0;
        double luminance = 0;
    };

    std::array<Band, HueCircle::Hues> bands;

    bool IsIdentity() const;
};

template <>
const std::vector<Zorvik::Quindle::EffectParameter>& DescribeParameters<ColourMixerParameters>();
template <>
ColourMixerParameters
ReadParameters<ColourMixerParameters>(const Zorvik::Quindle::IEffectSettings& settings);

EffectKind MakeColourMixerKind();

} // namespace LumetraHost
