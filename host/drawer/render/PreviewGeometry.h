// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/PictureArea.h"
#include "image/Resize.h"

#include "Zorvik/Proc/Frame.h"

namespace LumetraHost {

/// Which part of the photo a preview shows, and how many pixels it has.
struct PreviewGeometry
{
    PixelRect part; ///< of the photo
    int width = 0;
    int height = 0;

    /// Crop 0: the whole photo, inside the target; 1 (and all others): the centre of it, filling
    /// the target. Fit 0 (and all others): scaled up or down; 1: never enlarged. The photo has
    /// square pixels, the preview pixels of the target's aspect (width / height). Zorvik::Exception
    /// for a target without pixels or with an aspect that is not positive and finite.
    static PreviewGeometry Make(int photoWidth, int photoHeight,
                                const Zorvik::Proc::FrameTarget& target, int cropPolicy,
                                int fitPolicy);

    PictureArea GetArea(int photoWidth, int photoHeight) const;
};

} // namespace LumetraHost
