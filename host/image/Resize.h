// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/Image.h"
#include "image/KeptImage.h"
#include "image/PixelRect.h"

namespace LumetraHost {

/// How carefully a picture is resized. Fast may show aliasing when it shrinks. Screen is for large
/// pictures that are looked at: where whole numbers divide their sides it averages squares of whole
/// pixels first, which takes a third of the time and weighs single pixels a little differently.
enum class ResizeQuality
{
    Fast,
    Screen,
    Fine
};

/// The part `area` of `source` (inside it, at least 1 x 1) as a picture of width x height. Fine
/// and Screen shrink by area averages and enlarge by cubic interpolation, Fast interpolates
/// linearly; all on the encoded values. Transparent pixels do not bleed their colour into others,
/// or by half a step at most where they are too few to make the average transparent. Shrinks on the
/// shared pool.
Image Resize(const Image& source, const PixelRect& area, int width, int height,
             ResizeQuality quality);
/// Makes the same pixels of a packed source as of one with four channels.
Image Resize(const KeptImage& source, const PixelRect& area, int width, int height,
             ResizeQuality quality);

} // namespace LumetraHost
