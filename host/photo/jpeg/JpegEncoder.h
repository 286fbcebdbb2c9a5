// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/file/EncodingOptions.h"
#include "photo/file/RowEncoder.h"
#include "photo/file/Warnings.h"
#include "photo/metadata/PhotoMetadata.h"

#include <memory>
#include <string>

namespace LumetraHost {

/// Encodes JPEG with 8 bits per channel, YCbCr. Sequential files have the standard's Huffman
/// tables: own tables would need all coefficients of the picture in memory and a second pass.
/// Progressive files need both anyway: 2 bytes per coefficient until Finish(). Alpha is composed
/// over white.
class JpegEncoder
{
public:
    /// True when the format takes this profile.
    static bool HoldsProfile(const QByteArray& iccProfile);

    /// ChromaSampling::Automatic stores colours at full resolution (4:4:4) from this quality up,
    /// below at a quarter (4:2:0).
    static constexpr int FullColorQuality = 90;

    /// Begins a file with all its metadata. `name` begins the text of every
    /// Zorvik::Exception; `warnings` tells what the format cannot hold of alpha and metadata.
    static std::unique_ptr<RowEncoder> Start(const PictureForm& form,
                                             const EncodingOptions& options,
                                             const PhotoMetadata& metadata, const std::string& name,
                                             Warnings& warnings);
};

} // namespace LumetraHost
