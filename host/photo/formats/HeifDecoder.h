// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/file/DecodedPhoto.h"
#include "photo/file/PhotoFormat.h"

#include <string>

namespace LumetraHost {

/// Decodes the main picture of HEIC and AVIF files, upright as the file says: 8 bits to 8, more to
/// 16. Delivers EXIF, XMP and the colour profile; ours where the file only names Display P3.
class HeifDecoder
{
public:
    /// `name` begins the text of every Zorvik::Exception.
    static DecodedPhoto Decode(const Bytes& content, const std::string& name);
};

} // namespace LumetraHost
