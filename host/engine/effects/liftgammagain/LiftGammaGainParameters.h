// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Quindle/EffectRegistry.h"
#include "Zorvik/Quindle/IEffectSettings.h"

#include <array>
#include <vector>

namespace LumetraHost {

/// Lift, gamma, gain as the ASC Color Decision List writes them, on encoded values:
/// c = (c * slope + offset)^power for each channel, then c = Y + saturation * (c - Y) with the
/// luma Y of Rec. 709. With `clamp` values are limited to 0..1 before the power and at the end, as
/// the list's version 1.2 has it; without, nothing is limited, and the power leaves values below
/// zero alone (the style "noClampFwd" of the Common LUT Format).
/// Source: ASC CDL transfer functions and interchange syntax, version 1.2.
struct LiftGammaGainParameters
{
    static constexpr char EffectId[] = "liftGammaGain";

    std::array<double, 3> slope = {1, 1, 1};  ///< 0 to 10; parameters slopeRed, slopeGreen, …
    std::array<double, 3> offset = {0, 0, 0}; ///< -2 to 2; offsetRed, …
    std::array<double, 3> power = {1, 1, 1};  ///< 0.1 to 10; powerRed, …
    double saturation = 1;                    ///< 0 (grey) to 10
    bool clamp = false;                       ///< the parameter is 0 or 1; halves count as 1

    static const std::vector<Zorvik::Quindle::EffectParameter>& Describe();
    /// Clamped to the described ranges.
    static LiftGammaGainParameters Read(const Zorvik::Quindle::IEffectSettings& settings);

    /// Whatever `clamp` is.
    bool IsIdentity() const;
    bool HasPower() const;
};

} // namespace LumetraHost
