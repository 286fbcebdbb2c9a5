// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/file/DecodedPhoto.h"
#include "photo/file/PhotoFormat.h"

#include <string>

namespace LumetraHost {

/// Decodes WebP, lossy and lossless, with alpha, colour profile, EXIF and XMP. Animations and
/// damaged or incomplete files are refused.
class WebpDecoder
{
public:
    /// `name` begins the text of every Zorvik::Exception.
    static DecodedPhoto Decode(const Bytes& content, const std::string& name);
};

} // namespace LumetraHost
