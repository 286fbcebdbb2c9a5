// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/file/DecodedPhoto.h"
#include "photo/file/PhotoFormat.h"

#include <string>

namespace LumetraHost {

/// Decodes JPEG with 8 bits per channel: grey, YCbCr, RGB, CMYK and YCCK, sequential and
/// progressive. Lossless and 12-bit files are refused, and so are files of which data is missing or
/// damaged: a photo is opened whole or not at all.
class JpegDecoder
{
public:
    /// `name` begins the text of every Zorvik::Exception. `smallestSide`: decodes at 1/2, 1/4 or
    /// 1/8 of the size, see JpegRowReader::ScaleDown(); 0: at full size.
    static DecodedPhoto Decode(const Bytes& content, const std::string& name, int smallestSide = 0);
};

} // namespace LumetraHost
