// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/Image.h"
#include "image/PixelRect.h"

namespace LumetraHost {

/// The picture turned upright. `orientation` counts as in EXIF: 1 upright, 2 mirrored left to
/// right, 3 turned by 180 degrees, 4 mirrored top to bottom, 5 mirrored about the main diagonal,
/// 6 to be turned clockwise by 90 degrees, 7 mirrored about the other diagonal, 8 to be turned
/// counter-clockwise. Any other number counts as 1, for which the same pixels come back.
Image TurnUpright(const Image& image, int orientation);

/// The place of some rows of a stored picture of width x height, from row `first` on, in the
/// upright one: TurnUpright() of these rows alone belongs there.
PixelRect FindUprightPlace(int width, int height, int first, int count, int orientation);

} // namespace LumetraHost
