// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/effects/lut3d/LookUpTable.h"
#include "lut/LutFormat.h"

#include <QByteArray>
#include <QString>

#include <string>
#include <vector>

namespace LumetraHost {

/// Puts a cube over 0..1 into the form of a file that other programs read, and LutReader too.
/// Titles may hold any characters: those that a format cannot hold are replaced.
class LutWriter
{
public:
    /// The formats that can be written.
    static bool CanWrite(LutFormat format);
    /// Sizes that fit into a HaldCLUT: the squares of its levels, 4, 9, 16 to 121.
    static bool IsHaldSize(int size);

    /// The content of a file named `path`, which chooses between PNG and TIFF for pictures (PNG for
    /// any other name). Zorvik::Exception that names the file for a format that is not written, and
    /// for a HaldCLUT of a size that does not fit.
    static QByteArray Encode(const LookUpTable& cube, LutFormat format, const QString& title,
                             const QString& path);

    /// The .cube format of Adobe, version 1.0.
    static QByteArray ToCubeFile(const LookUpTable& cube, const QString& title);
    /// The Common LUT Format, version 3, with whole numbers of 16 bits.
    static QByteArray ToClfFile(const LookUpTable& cube, const QString& title);
};

} // namespace LumetraHost
