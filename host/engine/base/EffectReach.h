// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace LumetraHost {

/// How far an effect looks to make one pixel. Only effects of colour alone can be put into a lookup
/// table; only effects without neighbours can be drawn tile by tile.
enum class EffectReach
{
    ColourOnly, ///< the pixel's own colour
    Positional, ///< its colour and where it lies in the picture
    Spatial     ///< its neighbours too
};

} // namespace LumetraHost
