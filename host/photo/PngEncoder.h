// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/Image.h"
#include "photo/PhotoFormat.h"
#include "photo/PhotoMetadata.h"

#include <string>

namespace LumetraHost {

/// Encodes PNG with the picture's own depth, with alpha where the picture is not opaque. Writes the
/// colour profile and the EXIF block; the other metadata are not its matter.
class PngEncoder
{
public:
    /// `name` begins the text of every Zorvik::Exception.
    static Bytes Encode(const Image& image, const PhotoMetadata& metadata, const std::string& name);
};

} // namespace LumetraHost
