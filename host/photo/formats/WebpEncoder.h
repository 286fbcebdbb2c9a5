// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/file/EncodingOptions.h"
#include "photo/file/RowEncoder.h"
#include "photo/file/Warnings.h"
#include "photo/metadata/PhotoMetadata.h"

#include <memory>
#include <string>

namespace LumetraHost {

/// Encodes WebP with 8 bits per channel, lossy or lossless, with alpha where the picture is not
/// opaque, and with colour profile, EXIF and XMP. The codec takes no rows: it holds the picture
/// (4 bytes per pixel and what it works with) until Finish() encodes it.
class WebpEncoder
{
public:
    static constexpr int LargestSide = 16383; ///< pixels; the format's own limit

    /// `name` begins the text of every Zorvik::Exception, such as that for a picture with a longer
    /// side. `warnings` tells what the format cannot hold. `goesOn` may be empty; the file is empty
    /// when it says no.
    static std::unique_ptr<RowEncoder> Start(const PictureForm& form,
                                             const EncodingOptions& options,
                                             const PhotoMetadata& metadata, const std::string& name,
                                             Warnings& warnings, const GoesOn& goesOn);
};

} // namespace LumetraHost
