// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace LumetraHost {

/// Part of one row while it passes through a segment: planar floats, 1.0 is white, not clamped.
/// The planes are aligned to 64 bytes and do not overlap; they belong to the segment.
struct Tile
{
    float* red = nullptr;
    float* green = nullptr;
    float* blue = nullptr;
    int count = 0; ///< pixels
    int x = 0;     ///< column of the first pixel in the picture that is rendered
    int y = 0;     ///< row
};

} // namespace LumetraHost
