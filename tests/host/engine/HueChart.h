// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/engine/Reference.h"

#include "Zorvik/Quindle/IEffectSettings.h"

#include <string>
#include <vector>

namespace LumetraHost {

/// A hue that effects name.
struct NamedHue
{
    std::string name;
    double degrees;
};

/// Red, orange, yellow, green, aqua, blue, purple and magenta.
const std::vector<NamedHue>& GetNamedHues();

/// An encoded colour of that hue, in degrees of any size: its least channel and, above it, its
/// chroma.
Colour MakeHue(double degrees, double least = 0.3, double chroma = 0.4);

/// 0 to 360 degrees.
double MeasureHue(const Colour& encoded);
/// The largest channel less the least.
double MeasureChroma(const Colour& encoded);
/// By how many degrees the hue lies behind `start`, -180 to 180.
double MeasureTurn(const Colour& encoded, double start);

/// The encoded colours as one row of 16 bits.
Image MakeChart(const std::vector<Colour>& encoded);
/// The encoded colours of the first row.
std::vector<Colour> ReadChart(const Image& image);

/// The chart through one effect, in 16 bits.
std::vector<Colour> DrawChart(const std::vector<Colour>& encoded,
                              const Zorvik::Quindle::EffectPtr& effect);
/// The colour through one effect, in 16 bits.
Colour DrawColour(const Colour& encoded, const Zorvik::Quindle::EffectPtr& effect);

/// Expects the effect to leave all greys of both depths as they are, to the bit.
void ExpectGreysStay(const Zorvik::Quindle::EffectPtr& effect);

/// Runs the effect's stage on encoded colours far outside of 0..1, and on many around it. Expects
/// finite values, and no jump: colours that are almost the same become colours that are almost the
/// same, up to `steepest` times as far apart.
void ExpectNoJumps(const Zorvik::Quindle::EffectPtr& effect, double steepest);

} // namespace LumetraHost
