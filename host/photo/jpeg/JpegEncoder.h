// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/file/RowEncoder.h"
#include "photo/file/Warnings.h"
#include "photo/metadata/PhotoMetadata.h"

#include <memory>
#include <string>

namespace LumetraHost {

/// Encodes sequential JPEG with 8 bits per channel, YCbCr, with the standard's Huffman tables: own
/// tables would need all coefficients of the picture in memory and a second pass. Alpha is composed
/// over white.
class JpegEncoder
{
public:
    /// True when the format takes this profile.
    static bool HoldsProfile(const QByteArray& iccProfile);

    /// From this quality up the colours are stored at full resolution (4:4:4), below at a quarter
    /// (4:2:0).
    static constexpr int FullColorQuality = 90;

    /// Begins a file with all its metadata. `quality` 1..100, `name` begins the text of every
    /// Zorvik::Exception; `warnings` tells what the format cannot hold of alpha and metadata.
    static std::unique_ptr<RowEncoder> Start(const PictureForm& form, int quality,
                                             const PhotoMetadata& metadata, const std::string& name,
                                             Warnings& warnings);
};

} // namespace LumetraHost
