// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/Photo.h"
#include "photo/file/PhotoFormat.h"

#include <QString>

#include <string>

namespace LumetraHost {

/// Opens photos: JPEG, PNG, TIFF, WebP, HEIC, AVIF and cameras' raw files, known by their content,
/// whatever their names say. 8 and 16 bits are kept, the EXIF orientation is applied, and the
/// colours are settled (see ColorConversion). A photo is read whole or not at all; only its
/// metadata may be left out, with a warning. From a file with several pictures the first is read,
/// and the photo's reductions tell of it. Usable from any thread.
class PhotoReader
{
public:
    /// Zorvik::Exception naming the file, what is wrong with it and what was expected, also when
    /// there is not enough memory.
    static Photo Read(const QString& path);
    /// Reads a photo that is to stay in memory: packed where it is opaque, see KeptImage. A
    /// JPEG file whose colours stay as they are is packed while it is decoded, so that no more is
    /// ever in memory. The pixels, metadata, warnings and errors of Read().
    static KeptPhoto ReadToKeep(const QString& path);
    /// Reads from memory; `name` stands for the file in errors. std::bad_alloc.
    static Photo Decode(const Bytes& content, const std::string& name);
    /// A smaller picture for previews and thumbnails, at a fraction of the cost where the format
    /// allows it: its longer side has at least `smallestSide` pixels where the photo has them, and
    /// may be as large as the photo.
    static Photo DecodeReduced(const Bytes& content, const std::string& name, int smallestSide);
    /// Reads a smaller picture from a file, with the errors of Read().
    static Photo ReadReduced(const QString& path, int smallestSide);

    /// The bytes of a photo file. Zorvik::Exception when it is no file, no photo, too large,
    /// unreadable or changing. The beginning is checked before the rest is read.
    static Bytes ReadContent(const QString& path);
};

} // namespace LumetraHost
