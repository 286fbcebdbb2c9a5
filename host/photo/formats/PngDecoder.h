// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/file/DecodedPhoto.h"
#include "photo/file/PhotoFormat.h"

#include <string>

namespace LumetraHost {

/// Decodes PNG of every colour type and depth: up to 8 bits to 8, 16 bits to 16. Delivers the
/// colour profile and the EXIF chunk too. Damaged and incomplete files are refused; gamma and
/// chromaticity chunks without a profile are not looked at.
class PngDecoder
{
public:
    /// `name` begins the text of every Zorvik::Exception.
    static DecodedPhoto Decode(const Bytes& content, const std::string& name);
};

} // namespace LumetraHost
