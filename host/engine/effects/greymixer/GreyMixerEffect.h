// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/ParameterTable.h"

namespace LumetraHost {

struct EffectKind;

/// Grey mixer: black and white in which eight hues (see HueCircle) are made lighter or darker, each
/// on its own, mixed into the colours by `amount`. On encoded values grey = Y * 2^(0.75 * a *
/// step(2 S)) with the luma Y of Rec. 709, a / 100 weighed between the two hues that the colour
/// lies between, and its saturation S = C / (0.1 + the largest absolute channel), limited to 0..1,
/// where C is the largest channel less the least. Greys stay as bright as they are, and the hues of
/// almost grey colours, which are mostly noise, count for little.
/// Sources: hue and S, A. R. Smith, "Color Gamut Transform Pairs", SIGGRAPH 1978; the step, Ebert
/// et al., Texturing and Modeling. The amounts are ours.
struct GreyMixerParameters
{
    static constexpr char EffectId[] = "greyMixer";

    double amount = 0;
    double red = 0; ///< in all hues negative numbers darken
    double orange = 0;
    double yellow = 0;
    double green = 0;
    double aqua = 0;
    double blue = 0;
    double purple = 0;
    double magenta = 0;

    static constexpr ParameterRow<GreyMixerParameters> Table[] = {
        {"amount", &GreyMixerParameters::amount, 0, 100, "%"},
        {"red", &GreyMixerParameters::red, -100, 100, "%"},
        {"orange", &GreyMixerParameters::orange, -100, 100, "%"},
        {"yellow", &GreyMixerParameters::yellow, -100, 100, "%"},
        {"green", &GreyMixerParameters::green, -100, 100, "%"},
        {"aqua", &GreyMixerParameters::aqua, -100, 100, "%"},
        {"blue", &GreyMixerParameters::blue, -100, 100, "%"},
        {"purple", &GreyMixerParameters::purple, -100, 100, "%"},
        {"magenta", &GreyMixerParameters::magenta, -100, 100, "%"}};

    bool IsIdentity() const { return amount == 0; }
};

EffectKind MakeGreyMixerKind();

} // namespace LumetraHost
