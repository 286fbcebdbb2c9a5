// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/PhotoFormat.h"
#include "photo/PhotoMetadata.h"

#include <string>

namespace LumetraHost {

/// Puts the EXIF, XMP and IPTC blocks into an encoded photo.
class MetadataWriter
{
public:
    /// The blocks as they have to be for an upright sRGB picture of this size: orientation 1, size
    /// updated, thumbnails gone. `name` begins the text of every Zorvik::Exception.
    static PhotoMetadata Normalise(const PhotoMetadata& metadata, int width, int height,
                                   const std::string& name);

    /// Returns `encoded` with the blocks in it. PNG files carry their EXIF block already; it stays.
    /// Zorvik::Exception when a block does not fit the format (JPEG: 64 kB for each).
    static Bytes Embed(Bytes encoded, PhotoFormat format, const PhotoMetadata& metadata,
                       const std::string& name);
};

} // namespace LumetraHost
