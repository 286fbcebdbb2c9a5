// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/file/PhotoFormat.h"
#include "photo/file/Warnings.h"
#include "photo/metadata/PhotoMetadata.h"

#include <optional>

namespace LumetraHost {

/// Puts the EXIF, XMP and IPTC blocks into an encoded photo. A block that cannot be written costs
/// neither the others nor the picture: it is left out with a warning.
class MetadataWriter
{
public:
    /// The blocks as they have to be for an upright picture of this size, sRGB or in the space of
    /// its profile: orientation 1, size and colour space updated, thumbnails gone. An XMP packet
    /// that cannot be decoded stays as it is.
    static PhotoMetadata Normalise(const PhotoMetadata& metadata, int width, int height,
                                   bool isSrgb, Warnings& warnings);

    /// Pixels per length on paper.
    struct Resolution
    {
        double x = 0;
        double y = 0;
        bool perCentimetre = false; ///< else per inch
    };
    /// The resolution that a normalised EXIF block names; nothing where it names none.
    static std::optional<Resolution> GetResolution(const PhotoMetadata& metadata);

    /// One XMP packet with the properties of the packet and its extension, for formats that hold no
    /// extension; without those of the extension, and with a warning, where a part cannot be
    /// decoded.
    static QByteArray JoinXmp(const PhotoMetadata& metadata, Warnings& warnings);

    /// Returns `encoded`, a PNG or TIFF file which has no such blocks yet, with the blocks in it.
    static Bytes Embed(Bytes encoded, PhotoFormat format, const PhotoMetadata& metadata,
                       Warnings& warnings);
};

} // namespace LumetraHost
