// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/ColourMatrix.h"
#include "engine/base/ParameterTable.h"

namespace LumetraHost {

/// Saturation: every colour moves away from the grey of its own luma, or towards it:
/// c = luma + s * (c - luma) with s = 1 + amount / 100 and the weights of Rec. 709, on encoded
/// values, where the luma stays what it was. Sources: W3C Filter Effects 1, feColorMatrix of type
/// saturate with sRGB as the space of filters; ASC CDL 1.2, its saturation step (which leaves the
/// space to the user).
struct SaturationParameters
{
    static constexpr char EffectId[] = "saturation";

    double amount = 0; ///< -100 gives greys, 100 colours twice as saturated

    static constexpr ParameterRow<SaturationParameters> Table[] = {
        {"amount", &SaturationParameters::amount, -100, 100, "%"}};

    bool IsIdentity() const { return amount == 0; }
    ColourMatrix GetMatrix() const;
};

} // namespace LumetraHost
