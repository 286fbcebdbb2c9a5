// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/Photo.h"
#include "photo/PhotoFormat.h"

#include <QString>

#include <string>

namespace LumetraHost {

/// Opens photos: JPEG, PNG and TIFF, known by their content, whatever their names say. 8 and 16
/// bits are kept, the EXIF orientation is applied, other colour spaces than sRGB are converted.
/// A photo is read whole or not at all; only its metadata may be left out, with a warning. Of files
/// with several pictures the first is read. Usable from any thread.
class PhotoReader
{
public:
    /// Zorvik::Exception naming the file, what is wrong with it and what was expected.
    static Photo Read(const QString& path);
    /// The same for a file in memory; `name` stands for it in errors.
    static Photo Decode(const Bytes& content, const std::string& name);
};

} // namespace LumetraHost
