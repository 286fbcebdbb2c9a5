// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "exporting/ExportLook.h"
#include "image/Image.h"
#include "photo/file/EncodingOptions.h"
#include "photo/file/PhotoFormat.h"
#include "photo/file/PhotoLimits.h"
#include "photo/metadata/EditRecord.h"
#include "photo/metadata/MetadataFilter.h"

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
    /// Pixels of a picture that may be asked for.
    static constexpr int LargestArea = static_cast<int>(PhotoLimits::LargestArea);

    struct Size
    {
        int width;
        int height;
    };

    std::shared_ptr<const ExportLook> look; ///< null: the photo as it is
    std::vector<EditRecord> records; ///< bottom first; go into the metadata, see HasRecords()
    PhotoFormat format = PhotoFormat::Jpeg; ///< one of WrittenFormats
    EncodingOptions encoding;
    std::optional<Image::Depth> depth; ///< empty: the photo's own; JPEG and WebP hold 8 bits
    int longestSide = 0;               ///< 1 to LargestSide pixels; 0: no limit
    int mostPixels = 0;                ///< 1 to LargestArea pixels of the picture; 0: no limit
    KeptMetadata metadata = KeptMetadata::All;
    /// The photo's own, or sRGB where it has none. Programs take a file without a profile for sRGB:
    /// photos in other spaces are converted for it.
    bool embedsProfile = true;
    /// The fingerprint of the job, which goes into the metadata with the records; empty: none. See
    /// JobFingerprint, which covers every other member.
    std::string job;

    /// The depth of the file of a photo with `photoDepth`.
    Image::Depth GetDepth(Image::Depth photoDepth) const;
    /// The size of the file's picture, within both limits. A photo is never enlarged and keeps a
    /// pixel at least.
    Size GetSize(int width, int height) const;
    /// True when the file's metadata name the looks and the program.
    bool HasRecords() const;
    /// Zorvik::Exception that begins with `name` for what no file can have: 16 bits in a JPEG
    /// or WebP file, a size out of range. The quality is looked at by the writer.
    void Check(const std::string& name) const;
};

} // namespace LumetraHost
