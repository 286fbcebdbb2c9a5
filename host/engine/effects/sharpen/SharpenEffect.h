// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/ParameterTable.h"

namespace LumetraHost {

struct EffectKind;

/// Sharpening by an unsharp mask on luma. With Y the luma of the sRGB-encoded channels (Rec. 709
/// weights), d = Y - Gaussian(Y) and t = threshold / 255, every encoded channel changes by
/// amount / 100 * (d - clamp(d, -t, t)), so that hues stay and noise below the threshold is left
/// alone without an edge. The radius is the standard deviation; outside of the picture its mirror
/// image counts.
/// Source: Gonzalez, Woods, Digital Image Processing, section on unsharp masking.
struct SharpenParameters
{
    static constexpr char EffectId[] = "sharpen";

    double amount = 0;
    double radius = 0.015;
    double threshold = 0;

    static constexpr ParameterRow<SharpenParameters> Table[] = {
        {"amount", &SharpenParameters::amount, 0, 500, "%"},
        {"radius", &SharpenParameters::radius, 0.005, 0.2, Units::PercentOfDiagonal},
        {"threshold", &SharpenParameters::threshold, 0, 50, Units::EightBitSteps}};

    bool IsIdentity() const { return amount == 0; }
};

EffectKind MakeSharpenKind();

} // namespace LumetraHost
