// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/file/PhotoFormat.h"

#include <array>

namespace LumetraHost {

/// A format in which photos are written.
struct WrittenFormat
{
    PhotoFormat format;
    const char* word;   ///< in options and files of the user
    const char* name;   ///< in sentences and lists; the same in all languages
    const char* suffix; ///< of a new file, without the dot
    bool holds16Bits;   ///< per channel; the others hold 8
};

constexpr std::array<WrittenFormat, 4> WrittenFormats{{
    {PhotoFormat::Jpeg, "jpeg", "JPEG", "jpg", false},
    {PhotoFormat::Png, "png", "PNG", "png", true},
    {PhotoFormat::Tiff, "tiff", "TIFF", "tif", true},
    {PhotoFormat::Webp, "webp", "WebP", "webp", false},
}};

/// The entry of `format`, which has to be one of those that are written.
const WrittenFormat& GetWrittenFormat(PhotoFormat format);

} // namespace LumetraHost
