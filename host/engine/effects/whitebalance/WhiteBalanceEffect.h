// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/ColourMatrix.h"
#include "engine/base/ParameterTable.h"

namespace LumetraHost {

/// White balance: the photo is redrawn as if the scene had been lit by `temperature` and `tint` and
/// that light had been made neutral. Above 6500 K the picture gets warmer, below cooler; a positive
/// tint makes it more magenta, a negative one greener.
///
/// The light's white point is on the Planckian locus (Krystek, Color Research and Application 10,
/// 1985, his rational approximation in CIE 1960 uv), moved across the locus by tint / 3000, in the
/// manner of Duv (ANSI C78.377). The change from that white to the one at 6500 K is the Bradford
/// transform (Lam 1985; ICC.1, annex E) in linear light, scaled so that the luminance of white
/// stays what it was.
struct WhiteBalanceParameters
{
    static constexpr char EffectId[] = "whiteBalance";
    static constexpr double NeutralTemperature = 6500;

    double temperature = NeutralTemperature;
    double tint = 0;

    static constexpr ParameterRow<WhiteBalanceParameters> Table[] = {
        {"temperature", &WhiteBalanceParameters::temperature, 2000, 15000, "K"},
        {"tint", &WhiteBalanceParameters::tint, -150, 150}};

    bool IsIdentity() const { return temperature == NeutralTemperature && tint == 0; }
    ColourMatrix GetMatrix() const;
};

} // namespace LumetraHost
