// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/effects/lut3d/LookUpTable.h"

#include <QString>

namespace LumetraHost {

/// Reads a HaldCLUT: a square picture of level^3 x level^3 pixels that holds a cube of level^2
/// points along each axis, red running fastest. Levels 2 to 12. Source: E. Wheeler's definition,
/// http://www.quelsolaar.com/technology/clut.html.
class HaldReader
{
public:
    /// The cube; larger ones than 65 points are sampled down to that. Zorvik::Exception naming the
    /// file.
    static LookUpTable Read(const QString& path);
    /// True when the file's head announces a picture of the size of a HaldCLUT. Reads no pixels.
    static bool HasTableSize(const QString& path);
};

} // namespace LumetraHost
