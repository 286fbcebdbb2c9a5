// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/file/PhotoFormat.h"
#include "photo/file/Warnings.h"
#include "photo/metadata/PhotoMetadata.h"

namespace LumetraHost {

/// The EXIF, XMP and IPTC blocks of a photo file, each by itself: one that is damaged costs none of
/// the others. Tags that describe how the file stores its pixels are left out, since they would be
/// wrong anywhere else. XMP packets come as they are, whether they can be decoded or not.
class MetadataReader
{
public:
    struct Result
    {
        PhotoMetadata metadata; ///< without the colour profile, which the codecs deliver
        int orientation = 0;    ///< 1..8 as the EXIF block has it, else 0
        bool adobeRgb = false;  ///< the EXIF block says Adobe RGB
    };

    /// `exif` is the block that the codec delivered; when empty, the file's own is looked for.
    /// Damaged blocks are left out with a warning.
    static Result Read(const Bytes& content, const QByteArray& exif, Warnings& warnings);

    /// Checks blocks that a codec delivered, where it delivers all that there are.
    static Result ReadBlocks(const QByteArray& exif, const QByteArray& xmp, Warnings& warnings);
};

} // namespace LumetraHost
