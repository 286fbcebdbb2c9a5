// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/file/DecodedPhoto.h"
#include "photo/file/PhotoFormat.h"

#include <string>

namespace LumetraHost {

/// Decodes the main picture of HEIC and AVIF files, upright as the file says: 8 bits to 8, more to
/// 16. Delivers the colour profile (for Display P3 that is only named, ours), EXIF and XMP.
class HeifDecoder
{
public:
    /// `name` begins the text of every Zorvik::Exception.
    static DecodedPhoto Decode(const Bytes& content, const std::string& name);
};

} // namespace LumetraHost
