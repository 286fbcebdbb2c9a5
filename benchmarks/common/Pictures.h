// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/Image.h"

namespace LumetraBench {

/// The values of 0 to 255 that a photo's gradients run through, for red, green and blue, before the
/// grain of 8 more or less.
struct PhotoTones
{
    double base[3];
    double span[3];
};

/// Tones of which some are cut off at the ends of the range.
inline constexpr PhotoTones AllTones = {{0, 120, 10}, {250, 110, 230}};
/// Tones that effects seldom take below zero, where not all peers have a result: a power is none
/// there.
inline constexpr PhotoTones InnerTones = {{16, 115, 16}, {204, 84, 204}};

/// A picture like a photo: soft gradients with fine grain, opaque. Each call makes the same one,
/// and both depths show the same.
LumetraHost::Image MakePhoto(int width, int height, LumetraHost::Image::Depth depth,
                             const PhotoTones& tones = AllTones);

/// The peak signal-to-noise ratio of two pictures of one size and depth, colours only, in decibels;
/// 200 when they are equal.
double GetPsnr(const LumetraHost::Image& first, const LumetraHost::Image& second);

} // namespace LumetraBench
