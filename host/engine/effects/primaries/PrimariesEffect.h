// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/ColourMatrix.h"
#include "engine/base/ParameterTable.h"

namespace LumetraHost {

struct EffectKind;

/// Primaries: hue and saturation of red, green and blue, of which all colours are mixed, and a tint
/// of the shadows. On encoded values, where saturated colours leave the picture's range gently, a
/// matrix: c' = c + sum over i of D_i * (c_i - (r + g + b) / 3). D_i is what the pure primary i
/// changes by: its chroma is turned by hue / 100 * 45 degrees and taken times 1 + saturation / 100,
/// around its luma of Rec. 709, which stays. Greys therefore stay, so does the luma of all colours,
/// and the three saturations together are the effect saturation.
///
/// The tint is added to that: shadowTint / 500 * 4 Y (1 - Y) * (1 - step(Y))^2 times magenta less
/// its luma, with the luma Y limited to 0..1; it is strongest at dark tones, and leaves black and
/// white.
///
/// Sources: a matrix that keeps white, from what it does to the primaries, SMPTE RP 177, here by
/// differences because scaled primaries would darken the other two; the pure colours, A. R. Smith,
/// "Color Gamut Transform Pairs", SIGGRAPH 1978; the step, Ebert et al., Texturing and Modeling.
/// The amounts are ours.
struct PrimariesParameters
{
    static constexpr char EffectId[] = "primaries";

    double redHue = 0; ///< positive towards yellow
    double redSaturation = 0;
    double greenHue = 0; ///< positive towards aqua
    double greenSaturation = 0;
    double blueHue = 0; ///< positive towards magenta
    double blueSaturation = 0;
    double shadowTint = 0; ///< positive towards magenta, negative towards green

    static constexpr ParameterRow<PrimariesParameters> Table[] = {
        {"redHue", &PrimariesParameters::redHue, -100, 100, "%"},
        {"redSaturation", &PrimariesParameters::redSaturation, -100, 100, "%"},
        {"greenHue", &PrimariesParameters::greenHue, -100, 100, "%"},
        {"greenSaturation", &PrimariesParameters::greenSaturation, -100, 100, "%"},
        {"blueHue", &PrimariesParameters::blueHue, -100, 100, "%"},
        {"blueSaturation", &PrimariesParameters::blueSaturation, -100, 100, "%"},
        {"shadowTint", &PrimariesParameters::shadowTint, -100, 100, "%"}};

    bool IsIdentity() const { return shadowTint == 0 && HasSamePrimaries(); }
    /// True when the matrix changes nothing.
    bool HasSamePrimaries() const;
    /// Without the tint of the shadows.
    ColourMatrix GetMatrix() const;
};

EffectKind MakePrimariesKind();

} // namespace LumetraHost
