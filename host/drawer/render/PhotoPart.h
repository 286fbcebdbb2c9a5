// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/PictureArea.h"
#include "image/Resize.h"

namespace LumetraHost {

/// A part of a photo, and how it is scaled to be looked at.
struct PhotoPart
{
    PixelRect part; ///< whole pixels of the photo; empty when nothing of it is to be seen
    int width = 0;  ///< pixels of the scaled picture
    int height = 0;
    ResizeQuality quality = ResizeQuality::Screen;

    bool IsEmpty() const { return part.width < 1 || part.height < 1; }
    /// Where the scaled picture lies in a photo of that size. Not for empty parts.
    PictureArea GetArea(int photoWidth, int photoHeight) const;
};

bool operator==(const PhotoPart& first, const PhotoPart& second);

} // namespace LumetraHost
