// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/file/DecodedPhoto.h"
#include "photo/file/PhotoFormat.h"

#include <string>

namespace LumetraHost {

/// Decodes the first picture of a TIFF file: grey, RGB and CMYK of 8 and 16 bits in strips or
/// tiles, in one plane or several; palettes, bitmaps and the other 8-bit kinds through the codec
/// library's own conversion. Floating-point and 32-bit samples are refused, and so are files of
/// which data is missing or damaged.
class TiffDecoder
{
public:
    /// `name` begins the text of every Zorvik::Exception.
    static DecodedPhoto Decode(const Bytes& content, const std::string& name);
};

} // namespace LumetraHost
