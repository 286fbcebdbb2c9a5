// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/PhotoFormat.h"
#include "photo/PhotoMetadata.h"

#include <optional>
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

    /// Pixels per length on paper.
    struct Resolution
    {
        double x = 0;
        double y = 0;
        bool perCentimetre = false; ///< else per inch
    };
    /// What the EXIF block says of it; nothing where it says nothing. Errors as above.
    static std::optional<Resolution> GetResolution(const PhotoMetadata& metadata,
                                                   const std::string& name);

    /// Returns `encoded`, which has no such blocks yet, with the blocks in it.
    /// Zorvik::Exception when a block does not fit the format (JPEG: 64 kB for each).
    static Bytes Embed(Bytes encoded, PhotoFormat format, const PhotoMetadata& metadata,
                       const std::string& name);
};

} // namespace LumetraHost
