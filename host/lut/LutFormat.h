// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <optional>

namespace LumetraHost {

/// The files from which looks are read.
enum class LutFormat
{
    Cube,    ///< .cube of Adobe and of DaVinci Resolve, 1D and 3D
    ThreeDl, ///< .3dl of Autodesk
    Clf,     ///< Common LUT Format, .clf
    Cdl,     ///< ASC Color Decision Lists, .cc, .ccc and .cdl
    Hald     ///< a HaldCLUT picture, .png, .tif and .tiff
};

/// The format that a file name announces by its extension, in upper or lower case; nothing for any
/// other name.
std::optional<LutFormat> GetLutFormatOfName(const QString& path);

} // namespace LumetraHost
