// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/file/EncodingOptions.h"
#include "photo/file/RowEncoder.h"
#include "photo/metadata/PhotoMetadata.h"

#include <memory>
#include <string>

namespace LumetraHost {

/// Encodes TIFF with the picture's own depth, with straight alpha where the picture is not opaque,
/// not compressed or compressed without loss, after a horizontal predictor. Writes only those
/// metadata that belong to the picture's own directory: colour profile and resolution. Files above
/// 4 GB are refused, as the format ends there.
class TiffEncoder
{
public:
    /// `name` begins the text of every Zorvik::Exception.
    static std::unique_ptr<RowEncoder> Start(const PictureForm& form, TiffCompression compression,
                                             const PhotoMetadata& metadata,
                                             const std::string& name);
};

} // namespace LumetraHost
