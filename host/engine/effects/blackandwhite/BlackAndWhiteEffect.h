// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/ColourMatrix.h"
#include "engine/base/ParameterTable.h"
#include "image/Srgb.h"

namespace LumetraHost {

/// Black and white: grey = red * R + green * G + blue * B in linear light, as panchromatic film
/// behind a colour filter, mixed into the colours by `amount`. Weights that add up to 1 keep greys
/// as bright as they were; the defaults are the luminance of Rec. 709.
struct BlackAndWhiteParameters
{
    static constexpr char EffectId[] = "blackAndWhite";

    double amount = 0;
    double red = LumaRed; ///< the weight of red in the grey
    double green = LumaGreen;
    double blue = LumaBlue;

    static constexpr ParameterRow<BlackAndWhiteParameters> Table[] = {
        {"amount", &BlackAndWhiteParameters::amount, 0, 100, "%"},
        {"red", &BlackAndWhiteParameters::red, -2, 3},
        {"green", &BlackAndWhiteParameters::green, -2, 3},
        {"blue", &BlackAndWhiteParameters::blue, -2, 3}};

    bool IsIdentity() const { return amount == 0; }
    ColourMatrix GetMatrix() const;
};

} // namespace LumetraHost
