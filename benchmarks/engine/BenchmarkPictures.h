// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/Image.h"

namespace LumetraBench {

/// Sets the photo's size in millions of pixels; 12 without it. To be called before the first
/// GetPhoto().
void SetMegapixels(double megapixels);

/// The photo of that depth, see MakePhoto().
const LumetraHost::Image& GetPhoto(LumetraHost::Image::Depth depth);

/// Converts a radius of an effect to pixels of the photo.
double GetPixels(double percentOfDiagonal);

} // namespace LumetraBench
