// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/Image.h"
#include "photo/file/Warnings.h"
#include "photo/metadata/PhotoMetadata.h"

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
};

} // namespace LumetraHost
