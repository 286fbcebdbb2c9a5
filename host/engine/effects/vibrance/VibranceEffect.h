// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/ParameterTable.h"

namespace LumetraHost {

struct EffectKind;

/// Vibrance: saturation that reaches muted colours most and leaves pure ones as they are:
/// c = luma + (1 + amount / 100 * (1 - S)) * (c - luma), in linear light with the luminance of
/// Rec. 709. S is the colour's own saturation, (max - min) / max limited to 0..1. Negative amounts
/// take the muted colours back first.
/// Sources: that the gain falls with the colour's own saturation, SweetFX Vibrance (C. C. Schuldt
/// Jensen); S, A. R. Smith, "Color Gamut Transform Pairs", SIGGRAPH 1978; the luminance-keeping
/// mixture, ASC CDL 1.2.
struct VibranceParameters
{
    static constexpr char EffectId[] = "vibrance";

    double amount = 0;

    static constexpr ParameterRow<VibranceParameters> Table[] = {
        {"amount", &VibranceParameters::amount, -100, 100, "%"}};

    bool IsIdentity() const { return amount == 0; }
};

EffectKind MakeVibranceKind();

} // namespace LumetraHost
