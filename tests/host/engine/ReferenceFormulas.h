// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/engine/Reference.h"

#include <functional>
#include <vector>

namespace LumetraHost {

// The parts that the formulas of MakeReference() are written with.

double Luma(const Colour& c);
Colour Map(const Colour& c, const std::function<double(double)>& function);
/// Hermite's step, for 0 to 1.
double SmoothStep(double t);
/// Turns a formula on encoded values into one on linear light.
ReferenceFormula OnEncoded(const ReferenceFormula& formula);
/// The pure colour of a hue, 0 to 360 degrees.
Colour Pure(double hue);
/// The pure colour less its luma, times saturation / 200.
Colour Tint(double hue, double saturation);

/// Fritsch and Carlson in the basis of Hermite, as published.
struct HermiteCurve
{
    std::vector<double> x;
    std::vector<double> y;
    std::vector<double> slopes;

    /// `endSlope`: NaN for the slopes of the outer secants.
    HermiteCurve(std::vector<double> xs, std::vector<double> ys, double endSlope);
    double Evaluate(double at) const;
    /// Straight lines beyond the ends.
    double Extend(double at) const;
};

} // namespace LumetraHost
