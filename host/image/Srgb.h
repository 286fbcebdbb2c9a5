// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace LumetraHost {

/// The transfer function of IEC 61966-2-1 (sRGB) and its inverse, in double precision: the
/// reference for all kernels, tables and tests. Both are continued beyond 1 by their formula and
/// mirrored at 0.
double SrgbToLinear(double encoded);
double LinearToSrgb(double linear);

/// Luminance of the primaries of sRGB (Rec. 709), for linear light.
constexpr double LumaRed = 0.2126;
constexpr double LumaGreen = 0.7152;
constexpr double LumaBlue = 0.0722;

/// Middle grey: the reflectance to which exposure is measured, in linear light.
constexpr double MiddleGrey = 0.18;

/// Decoded values of all 256 channel values of 8 bits, and of all 65,536 of 16 bits.
const float* GetSrgbDecodeTable8();
const float* GetSrgbDecodeTable16();

} // namespace LumetraHost
