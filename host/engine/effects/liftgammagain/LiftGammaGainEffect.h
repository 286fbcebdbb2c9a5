// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/ParameterTable.h"

#include <array>

namespace LumetraHost {

struct EffectKind;

/// Lift, gamma, gain as the ASC Color Decision List writes them, on encoded values:
/// c = (c * slope + offset)^power for each channel, then c = Y + saturation * (c - Y) with the
/// luma Y of Rec. 709. With `clamp` values are limited to 0..1 before the power and at the end, as
/// the list's version 1.2 has it; without, nothing is limited, and the power leaves values below
/// zero alone (the style "noClampFwd" of the Common LUT Format).
/// Source: ASC CDL transfer functions and interchange syntax, version 1.2.
struct LiftGammaGainParameters
{
    static constexpr char EffectId[] = "liftGammaGain";

    using Channels = std::array<double, 3>;

    double slopeRed = 1, slopeGreen = 1, slopeBlue = 1;
    double offsetRed = 0, offsetGreen = 0, offsetBlue = 0;
    double powerRed = 1, powerGreen = 1, powerBlue = 1;
    double saturation = 1;
    double clamp = 0; ///< see Clamps()

    static constexpr ParameterRow<LiftGammaGainParameters> Table[] = {
        {"slopeRed", &LiftGammaGainParameters::slopeRed, 0, 10},
        {"slopeGreen", &LiftGammaGainParameters::slopeGreen, 0, 10},
        {"slopeBlue", &LiftGammaGainParameters::slopeBlue, 0, 10},
        {"offsetRed", &LiftGammaGainParameters::offsetRed, -2, 2},
        {"offsetGreen", &LiftGammaGainParameters::offsetGreen, -2, 2},
        {"offsetBlue", &LiftGammaGainParameters::offsetBlue, -2, 2},
        {"powerRed", &LiftGammaGainParameters::powerRed, 0.1, 10},
        {"powerGreen", &LiftGammaGainParameters::powerGreen, 0.1, 10},
        {"powerBlue", &LiftGammaGainParameters::powerBlue, 0.1, 10},
        {"saturation", &LiftGammaGainParameters::saturation, 0, 10},
        {"clamp", &LiftGammaGainParameters::clamp, 0, 1}};

    Channels GetSlope() const { return {slopeRed, slopeGreen, slopeBlue}; }
    Channels GetOffset() const { return {offsetRed, offsetGreen, offsetBlue}; }
    Channels GetPower() const { return {powerRed, powerGreen, powerBlue}; }
    /// Sliders also give numbers between 0 and 1: halves count as 1.
    bool Clamps() const { return clamp >= 0.5; }

    /// True when the numbers change nothing, whatever `clamp` is.
    bool IsIdentity() const;
    bool HasPower() const;
};

EffectKind MakeLiftGammaGainKind();

} // namespace LumetraHost
