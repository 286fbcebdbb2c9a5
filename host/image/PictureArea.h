// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace LumetraHost {

/// Where the rendered pixels lie in the whole picture, for effects that depend on the position:
/// a preview shows a part of the picture at another scale. Coordinates are in pixels of the whole
/// picture; the centre of the rendered pixel (x, y) is at originX + (x + 0.5) * scaleX.
struct PictureArea
{
    double pictureWidth = 0;
    double pictureHeight = 0;
    double originX = 0;
    double originY = 0;
    double scaleX = 1; ///< picture pixels per rendered pixel
    double scaleY = 1;

    /// The whole picture at its own size.
    static PictureArea Whole(int width, int height)
    {
        PictureArea area;
        area.pictureWidth = width;
        area.pictureHeight = height;
        return area;
    }
};

} // namespace LumetraHost
