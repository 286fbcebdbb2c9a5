// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/Image.h"

namespace LumetraHost {

/// Row `y` as 8-bit RGB over white, for formats without alpha and with 8 bits. 16-bit values are
/// rounded to the nearest. `target` takes 3 bytes per pixel.
void FlattenRow8(const Image& image, int y, std::uint8_t* target);
/// Row `y` without its alpha, at the picture's own depth; for opaque pictures. `target` takes 3
/// channels per pixel.
void CopyRowWithoutAlpha(const Image& image, int y, std::uint8_t* target);

} // namespace LumetraHost
