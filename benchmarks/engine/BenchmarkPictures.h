// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/Image.h"

namespace LumetraBench {

/// Before the first GetPhoto(): how large the photo is, in millions of pixels; 12 without it.
void SetMegapixels(double megapixels);

/// The photo of that depth, see MakePhoto().
const LumetraHost::Image& GetPhoto(LumetraHost::Image::Depth depth);

/// A radius as the effects have it, in pixels of the photo.
double GetPixels(double percentOfDiagonal);

} // namespace LumetraBench
