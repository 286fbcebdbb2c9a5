// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/ParameterTable.h"

namespace LumetraHost {

struct EffectKind;

/// Contrast: in linear light every channel's distance to middle grey (18 %), counted in stops, is
/// multiplied: c = 0.18 * (c / 0.18)^exponent with exponent = 2^(amount / 100). Middle grey and
/// black stay; values below zero are mirrored, so that nothing is clamped.
/// Source: the linear style of OpenColorIO's ExposureContrast operation.
struct ContrastParameters
{
    static constexpr char EffectId[] = "contrast";

    double amount = 0; ///< -100 halves the contrast, 100 doubles it

    static constexpr ParameterRow<ContrastParameters> Table[] = {
        {"amount", &ContrastParameters::amount, -100, 100, "%"}};

    bool IsIdentity() const { return amount == 0; }
    double GetExponent() const;
};

EffectKind MakeContrastKind();

} // namespace LumetraHost
