// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/Image.h"

#include "Zorvik/Quindle/EffectsSettings.h"

#include <array>
#include <functional>

namespace LumetraHost {

using Colour = std::array<double, 3>;
/// A formula on linear light in double precision; x and y are pixels.
using ReferenceFormula = std::function<Colour(const Colour&, int x, int y)>;

/// The distance of a picture from a formula, in steps of its depth. The formula's values, rounded,
/// have a largest error of at most 0.5 and the mean one given in `roundedMean`.
struct RenderError
{
    double largest = 0;
    double mean = 0;
    double roundedMean = 0;
};

/// Decodes the source by the formula of sRGB in double, applies `formula`, clamps, encodes, blends
/// and compares without rounding. Alpha must be the source's: else a failure is added.
RenderError MeasureError(const Image& source, const Image& rendered,
                         const ReferenceFormula& formula, int blendAmount = 1);

/// Renders the settings on random pictures of both depths and expects the largest error to stay
/// within 0.5 + 0.02 (8 bits), 0.5 + 0.1 (16 bits) steps, the mean one within 0.001 of what
/// rounding alone gives; records both with the test's properties.
void ExpectFormula(const Zorvik::Quindle::EffectsSettings& settings,
                   const ReferenceFormula& formula);

} // namespace LumetraHost
