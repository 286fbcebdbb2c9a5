// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Quindle/EffectRegistry.h"
#include "Zorvik/Quindle/IEffectSettings.h"

#include <vector>

namespace LumetraHost {

/// Sharpening by an unsharp mask on luma. With Y the luma of the sRGB-encoded channels (Rec. 709
/// weights), d = Y - Gaussian(Y) and t = threshold / 255, every encoded channel changes by
/// amount / 100 * (d - clamp(d, -t, t)), so that hues stay and noise below the threshold is left
/// alone without an edge. The radius is the standard deviation; outside of the picture its mirror
/// image counts.
/// Source: Gonzalez, Woods, Digital Image Processing, section on unsharp masking.
struct SharpenParameters
{
    static constexpr char EffectId[] = "sharpen";

    double amount = 0;     ///< 0 to 500 per cent
    double radius = 0.015; ///< 0.005 to 0.2 per cent of the picture's diagonal
    double threshold = 0;  ///< 0 to 50 steps of 8 bits

    static const std::vector<Zorvik::Quindle::EffectParameter>& Describe();
    /// Clamped to the described ranges.
    static SharpenParameters Read(const Zorvik::Quindle::IEffectSettings& settings);

    bool IsIdentity() const { return amount == 0; }
};

/// Equal when both draw the same.
bool operator==(const SharpenParameters& first, const SharpenParameters& second);

} // namespace LumetraHost
