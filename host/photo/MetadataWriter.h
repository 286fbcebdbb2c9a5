// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/PhotoFormat.h"
#include "photo/PhotoMetadata.h"

#include <optional>
#include <string>
#include <vector>

namespace LumetraHost {

/// Puts the EXIF, XMP and IPTC blocks into an encoded photo.
class MetadataWriter
{
public:
    /// The blocks as they have to be for an upright sRGB picture of this size: orientation 1, size
    /// updated, thumbnails gone. `name` begins the text of every Zorvik::Exception.
    static PhotoMetadata Normalise(const PhotoMetadata& metadata, int width, int height,
                                   const std::string& name);

    /// The same; EXIF and XMP in which that cannot be said are left out with a warning.
    static PhotoMetadata NormaliseOrDrop(const PhotoMetadata& metadata, int width, int height,
                                         const std::string& name,
                                         std::vector<std::string>& warnings);

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

    /// A segment of a JPEG file.
    struct JpegBlock
    {
        int marker = 0; ///< 0xE1 for APP1, ...
        QByteArray content;
    };
    /// The segments that stand for the EXIF, XMP and IPTC blocks in a JPEG file, in their order.
    /// Zorvik::Exception when one does not fit (64 kB for each).
    static std::vector<JpegBlock> MakeJpegBlocks(const PhotoMetadata& metadata,
                                                 const std::string& name);

    /// Returns `encoded`, which has no such blocks yet, with the blocks in it.
    /// Zorvik::Exception when a block does not fit the format (JPEG: 64 kB for each).
    static Bytes Embed(Bytes encoded, PhotoFormat format, const PhotoMetadata& metadata,
                       const std::string& name);
};

} // namespace LumetraHost
