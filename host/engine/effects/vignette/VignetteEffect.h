// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/ParameterTable.h"

namespace LumetraHost {

struct EffectKind;

/// Vignette: linear light falls off (or rises) towards the corners, multiplied by
/// 1 + (2^amount - 1) * w. w is 0 inside, 1 outside and in between Hermite's 3t^2 - 2t^3 (Ebert et
/// al., Texturing and Modeling), t running over the feather. The distance d is 0 in the centre and
/// 1 in the corners on ellipses: of the picture's proportions with roundness 0, circles with 100.
/// The fall-off begins at d = size and ends at d = size + feather * (1 - size).
/// That a lens's vignetting multiplies linear light: Goldman, IEEE PAMI 32 (2010).
struct VignetteParameters
{
    static constexpr char EffectId[] = "vignette";

    double amount = 0;    ///< in the corners; negative numbers darken them
    double size = 40;     ///< where it begins on the way from the centre to the corners
    double feather = 100; ///< the part of the way from there to the corners; 0 is a hard edge
    double roundness = 0; ///< 0 has the picture's proportions, 100 is a circle

    static constexpr ParameterRow<VignetteParameters> Table[] = {
        {"amount", &VignetteParameters::amount, -5, 5, Units::Stops},
        {"size", &VignetteParameters::size, 0, 100, "%"},
        {"feather", &VignetteParameters::feather, 0, 100, "%"},
        {"roundness", &VignetteParameters::roundness, 0, 100, "%"}};

    bool IsIdentity() const { return amount == 0 || size >= 100; }
};

EffectKind MakeVignetteKind();

} // namespace LumetraHost
