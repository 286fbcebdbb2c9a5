// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <array>

namespace LumetraHost {

/// Eight hues on the circle, by which effects take colours apart: red, orange, yellow, green, aqua,
/// blue, purple and magenta. A colour belongs to the two that it lies between, with weights that
/// add up to 1: Hermite's step 3t^2 - 2t^3 from one to the other.
struct HueCircle
{
    static constexpr int Hues = 8;
    /// The names of parameters begin with these.
    static constexpr const char* Names[Hues] = {"red",  "orange", "yellow", "green",
                                                "aqua", "blue",   "purple", "magenta"};
    /// In sectors of 60 degrees; the last one is red again.
    static constexpr float Centres[Hues + 1] = {0, 0.5f, 1, 2, 3, 4, 4.5f, 5, 6};
};

/// An amount over the circle of hues: its value at red, and how much it rises from each hue to the
/// next one.
struct HueAmounts
{
    float start = 0;
    float rises[HueCircle::Hues] = {};
};

/// From the amounts at the hues.
HueAmounts MakeHueAmounts(const std::array<double, HueCircle::Hues>& amounts);

} // namespace LumetraHost
