// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "lut/LutLook.h"

#include <QString>

namespace LumetraHost {

/// Reads LUT files with OpenColorIO, which this header hides. A table becomes the curves and the
/// cube of "lut3d" as they stand in the file; a file with more than one list of curves and one cube
/// is sampled into a cube of 65 points over 0..1. A colour decision list becomes "liftGammaGain".
class OcioLutReader
{
public:
    /// Points along each axis: larger cubes are sampled down to it.
    static constexpr int LargestStoredCube = 65;

    /// Reads a .cube, .3dl or .clf file. Zorvik::Exception naming the file.
    static Zorvik::Quindle::EffectPtr ReadTable(const QString& path);
    /// Reads a .cc, .ccc or .cdl file: one look for each correction, named by its id, else `name`.
    static LutLooks ReadDecisionLists(const QString& path, const std::string& name);
};

} // namespace LumetraHost
