// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/Image.h"
#include "photo/file/Warnings.h"
#include "photo/metadata/PhotoMetadata.h"

#include <string>

namespace LumetraHost {

/// A photo as the editor works on it: upright pixels, sRGB or in a space of their own, and the
/// metadata of its file.
struct Photo
{
    Image image;
    PhotoMetadata metadata;
    /// Damage that costs no pixels: metadata and colour profiles that cannot be used.
    Warnings warnings;
    /// Sound parts of the file that the picture does not hold: further pages, inks.
    /// They matter when the photo is written again.
    Warnings reductions;
    /// The hash of the file's content (see ContentHash), by which an export of the photo is known.
    /// Empty for a photo that was not read whole from a file.
    std::string contentHash = {};
};

} // namespace LumetraHost
