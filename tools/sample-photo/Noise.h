// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Vec3.h"

#include <cstdint>

namespace LumetraSample {

/// Well mixed 32 bits of `value`: a multiply and shift finalizer with the constants that
/// C. Wellons published as "lowbias32".
inline std::uint32_t Hash(std::uint32_t value)
{
    value ^= value >> 16;
    value *= 0x7feb352du;
    value ^= value >> 15;
    value *= 0x846ca68bu;
    value ^= value >> 16;
    return value;
}

/// A hash of a lattice corner; odd multipliers keep neighbours apart before they are mixed.
inline std::uint32_t Hash(std::int32_t x, std::int32_t y, std::int32_t z)
{
    return Hash(static_cast<std::uint32_t>(x) * 0x9e3779b1u ^
                static_cast<std::uint32_t>(y) * 0x85ebca77u ^
                static_cast<std::uint32_t>(z) * 0xc2b2ae3du);
}

/// A hash as a number in [0, 1).
inline float HashUnit(std::uint32_t hash)
{
    return static_cast<float>(hash >> 8) * (1.0f / 16777216.0f);
}

/// The largest whole number not above `value`, which must be within the range of int32.
inline std::int32_t Floor(float value)
{
    const auto whole = static_cast<std::int32_t>(value);
    return whole - (static_cast<float>(whole) > value ? 1 : 0);
}

/// Gradient noise in about -1..1 (K. Perlin, "Improving Noise", 2002: quintic fade, edge
/// gradients, table of permutations). Repeats every 256 units.
float GradientNoise(const Vec3& p);

/// Value noise in 0..1 on a plane with a quintic fade.
float ValueNoise(float x, float y);

/// Fractional Brownian motion (B. Mandelbrot; Musgrave in "Texturing and Modeling"): octaves of
/// gradient noise, each of half the size and half the height, in about -1..1.
float Fbm(Vec3 p, int octaves);

/// Octaves of value noise on a plane, in about -1..1. They are rotated against each other, so that
/// the lattice does not show.
float Fbm(float x, float y, int octaves);

/// Musgrave's ridged multifractal on a plane in 0..1: folded octaves, weighted by the last one, so
/// that ridges are rough and valleys smooth.
float Ridged(float x, float y, int octaves);

/// Distance to the nearest feature point of a jittered lattice of unit cells (S. Worley, 1996) and
/// the hash of that cell.
struct CellPoint
{
    float distance = 0.0f;
    std::uint32_t id = 0;
};
CellPoint Cells(float x, float y);

} // namespace LumetraSample
