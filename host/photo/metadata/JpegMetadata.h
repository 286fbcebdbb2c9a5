// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/file/Warnings.h"
#include "photo/metadata/JpegSegments.h"
#include "photo/metadata/PhotoMetadata.h"

#include <vector>

namespace LumetraHost {

/// The EXIF, XMP and IPTC blocks of JPEG files, between which segments divide them. Blocks are
/// found and laid out here, and are not looked into.
class JpegMetadata
{
public:
    /// The blocks as they stand in the file, without the colour profile. An extension of the XMP
    /// packet that is incomplete is left out with a warning.
    static PhotoMetadata Read(const Bytes& jpeg, Warnings& warnings);

    /// The segments that stand for the blocks, in the order of the file. A block that does not fit
    /// is made smaller, or left out, with a warning: EXIF loses its largest fields; XMP that is too
    /// long for a segment is divided.
    static std::vector<JpegSegment> Make(const PhotoMetadata& metadata, Warnings& warnings);
};

} // namespace LumetraHost
