// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/ParameterTable.h"

namespace LumetraHost {

struct EffectKind;

/// A look-up table on encoded values: first a curve for each channel, interpolated linearly, then a
/// cube, interpolated in tetrahedra, both optional. Colours outside a table's domain are moved to
/// its border. The result is mixed in: c = c + strength / 100 * (table(c) - c).
/// Sources: J. M. Kasson, W. Plouffe, S. I. Nin, "A Tetrahedral Interpolation Technique for Color
/// Space Conversion", SPIE 1909 (1993); the Common LUT Format S-2014-006.
struct Lut3dParameters
{
    static constexpr char EffectId[] = "lut3d";

    double strength = 100;

    static constexpr ParameterRow<Lut3dParameters> Table[] = {
        {"strength", &Lut3dParameters::strength, 0, 100, "%"}};
};

/// The tables themselves are in Lut3dSettings.
EffectKind MakeLut3dKind();

} // namespace LumetraHost
