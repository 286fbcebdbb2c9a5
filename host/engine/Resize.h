// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/Image.h"

namespace LumetraHost {

/// A rectangle of whole pixels.
struct PixelRect
{
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

/// How carefully a picture is resized. Fast may show aliasing when it shrinks.
enum class ResizeQuality
{
    Fast,
    Fine
};

/// The part `area` of `source` (inside it, at least 1 x 1) as a picture of width x height. Fine
/// shrinks by area averages and enlarges by cubic interpolation, Fast interpolates linearly; both
/// on the encoded values. Transparent pixels do not bleed their colour into others.
Image Resize(const Image& source, const PixelRect& area, int width, int height,
             ResizeQuality quality);

} // namespace LumetraHost
