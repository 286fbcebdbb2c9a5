// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Quindle/EffectRegistry.h"
#include "Zorvik/Quindle/IEffectSettings.h"

#include <vector>

namespace LumetraHost {

/// A look-up table on encoded values: first a curve for each channel, interpolated linearly, then a
/// cube, interpolated in tetrahedra, both optional. Colours outside a table's domain are moved to
/// its border. The result is mixed in: c = c + strength / 100 * (table(c) - c).
/// Sources: J. M. Kasson, W. Plouffe, S. I. Nin, "A Tetrahedral Interpolation Technique for Color
/// Space Conversion", SPIE 1909 (1993); the Common LUT Format S-2014-006.
struct Lut3dParameters
{
    static constexpr char EffectId[] = "lut3d";

    double strength = 100; ///< 0 to 100 per cent

    static const std::vector<Zorvik::Quindle::EffectParameter>& Describe();
    /// Clamped to the described ranges.
    static Lut3dParameters Read(const Zorvik::Quindle::IEffectSettings& settings);
};

} // namespace LumetraHost
