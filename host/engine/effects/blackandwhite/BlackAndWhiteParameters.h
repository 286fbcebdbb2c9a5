// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/ColourMatrix.h"

#include "Zorvik/Quindle/EffectRegistry.h"
#include "Zorvik/Quindle/IEffectSettings.h"

#include <vector>

namespace LumetraHost {

/// Black and white: grey = red * R + green * G + blue * B in linear light, as panchromatic film
/// behind a colour filter, mixed into the colours by `amount`. Weights that add up to 1 keep greys
/// as bright as they were; the defaults are the luminance of Rec. 709.
struct BlackAndWhiteParameters
{
    static constexpr char EffectId[] = "blackAndWhite";

    double amount = 0; ///< 0 to 100 per cent
    double red = 0;    ///< weights, -2 to 3
    double green = 0;
    double blue = 0;

    static const std::vector<Zorvik::Quindle::EffectParameter>& Describe();
    /// Clamped to the described ranges.
    static BlackAndWhiteParameters Read(const Zorvik::Quindle::IEffectSettings& settings);

    bool IsIdentity() const { return amount == 0; }
    ColourMatrix GetMatrix() const;
};

/// Equal when both draw the same: without an amount the weights do not matter.
bool operator==(const BlackAndWhiteParameters& first, const BlackAndWhiteParameters& second);

} // namespace LumetraHost
