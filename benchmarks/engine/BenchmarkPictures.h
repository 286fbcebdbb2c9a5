// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/Image.h"

namespace LumetraBench {

/// Before the first GetPhoto(): how large the photo is, in millions of pixels; 12 without it.
void SetMegapixels(double megapixels);

/// Something like a photo: soft gradients with fine grain, opaque, few values at the ends of the
/// range. The same every time; both depths show the same.
const LumetraHost::Image& GetPhoto(LumetraHost::Image::Depth depth);

/// A radius as the effects have it, in pixels of the photo.
double GetPixels(double percentOfDiagonal);

/// The peak signal-to-noise ratio of two pictures of one size and depth, colours only, in decibels;
/// 200 when they are equal.
double GetPsnr(const LumetraHost::Image& first, const LumetraHost::Image& second);

} // namespace LumetraBench
