// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "lut/LutLook.h"

#include <QString>

namespace LumetraHost {

/// Opens files with looks, known by their extensions (see LutFormat). A file is read whole or not
/// at all. Register the engine's effects first. Not for two threads at a time.
class LutReader
{
public:
    /// The largest file that is read, in bytes.
    static constexpr qint64 LargestFile = 64 * 1024 * 1024;

    /// At least one look; several only from a file of colour decision lists. Zorvik::Exception with
    /// the file, where possible the line, and what was expected.
    static LutLooks Read(const QString& path);
    /// The effect "lut3d" of a file with look-up tables. Zorvik::Exception as above, and for a file
    /// of colour decision lists.
    static Zorvik::Quindle::EffectPtr ReadTable(const QString& path);
};

} // namespace LumetraHost
