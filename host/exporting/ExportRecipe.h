// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "exporting/ExportLook.h"
#include "image/Image.h"
#include "photo/PhotoWriter.h"
#include "photo/file/PhotoFormat.h"
#include "photo/file/PhotoLimits.h"
#include "photo/metadata/EditRecord.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace LumetraHost {

/// The edit of photos in an export, and the form of their files. Any number of photos may share one
/// recipe; copies share the look.
struct ExportRecipe
{
    /// Sides that may be asked for, in pixels.
    static constexpr int LargestSide = static_cast<int>(PhotoLimits::LargestSide);

    struct Size
    {
        int width;
        int height;
    };

    std::shared_ptr<const ExportLook> look;    ///< null: the photo as it is
    std::vector<EditRecord> records;           ///< go into the metadata, bottom first
    PhotoFormat format = PhotoFormat::Jpeg;    ///< JPEG, PNG or TIFF
    int quality = PhotoWriter::DefaultQuality; ///< 1 to 100, for JPEG alone
    std::optional<Image::Depth> depth;         ///< empty: the photo's own; JPEG holds 8 bits
    int longestSide = 0;                       ///< 1 to LargestSide pixels; 0: the photo's own size
    bool keepsMetadata = true;                 ///< EXIF, IPTC and XMP, with the records
    /// The photo's own, or sRGB where it has none. Programs take a file without a profile for sRGB:
    /// photos in other spaces are converted for it.
    bool embedsProfile = true;

    /// The depth of the file of a photo with `photoDepth`.
    Image::Depth GetDepth(Image::Depth photoDepth) const;
    /// The size of the file's picture. A photo is never enlarged and keeps a pixel at least.
    Size GetSize(int width, int height) const;
    /// Zorvik::Exception that begins with `name` for what no file can have: 16 bits in a JPEG, a
    /// size out of range. The quality is looked at by the writer.
    void Check(const std::string& name) const;
};

} // namespace LumetraHost
