// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <array>

namespace LumetraHost {

/// Red, green and blue of the pure colour of a hue in degrees, of any size: 0 red, 60 yellow, 120
/// green, 180 cyan, 240 blue, 300 magenta. Each channel is 0 to 1, one of them 1 and one 0.
/// Source: A. R. Smith, "Color Gamut Transform Pairs", SIGGRAPH 1978.
std::array<double, 3> GetPureColour(double hue);

/// The pure colour less its own luma (Rec. 709), times `strength`: its luma is 0, so that a colour
/// that it is added to keeps its own.
std::array<double, 3> GetTint(double hue, double strength);

} // namespace LumetraHost
