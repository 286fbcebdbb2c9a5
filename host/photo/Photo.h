// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/Image.h"
#include "image/KeptImage.h"
#include "photo/file/Warnings.h"
#include "photo/metadata/PhotoMetadata.h"

#include <string>
#include <utility>

namespace LumetraHost {

/// A photo without its pixels.
struct PhotoDetails
{
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

/// A photo: upright pixels, sRGB or in a space of their own, and the metadata of its file.
struct Photo : PhotoDetails
{
    Image image;
};

/// A photo that stays in memory for long, as in the editor.
struct KeptPhoto : PhotoDetails
{
    KeptPhoto() = default;
    /// Leaves the pixels as they are.
    KeptPhoto(const Photo& photo) // NOLINT(google-explicit-constructor): a Photo is one too
        : PhotoDetails(photo), image(photo.image)
    {
    }
    KeptPhoto(PhotoDetails details, KeptImage pixels)
        : PhotoDetails(std::move(details)), image(std::move(pixels))
    {
    }

    KeptImage image;
};

} // namespace LumetraHost
