// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/file/DecodedPhoto.h"
#include "photo/file/PhotoFormat.h"

#include <string>

namespace LumetraHost {

/// Develops the raw files of cameras: white balance as shot, sRGB with 16 bits, no automatic
/// brightening, so that the same file always gives the same picture. Which cameras are known is the
/// raw library's matter. Truncated files are refused; damage inside the data is told of.
class RawDecoder
{
public:
    enum class Size
    {
        Full,
        Half ///< each 2 x 2 sensor cells make one pixel: no interpolation, four times as fast
    };

    /// `name` begins the text of every Zorvik::Exception.
    static DecodedPhoto Decode(const Bytes& content, const std::string& name, Size size);
};

} // namespace LumetraHost
