// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/ParameterTable.h"

namespace LumetraHost {

struct EffectKind;

/// Dehaze: takes the haze of distance and weather out of the picture, or adds to it. Hazy colours
/// are a mixture of what lies behind the air and the air's own light A, and the transmission t says
/// how much of the former gets through: c = A + (c0 - A) t. HazeMap finds A and t on a small copy
/// of the whole picture; t = slope * Y + offset of the drawn pixel's own luma, limited to 0.2..1,
/// from a map that is interpolated linearly. The effect draws, on sRGB-encoded channels,
///     A + (c - A) * t^(-amount / 100)                    for positive amounts, which undo the
///     mixture, A + (c - A) * (0.7 t)^(-amount / 100)              for negative ones: as much haze
///     once more,
/// and some in places that have none. Greys stay grey where the air is. Source: the dark channel
/// prior, see HazeMap; the exponent, and the haze of places without, are ours.
struct DehazeParameters
{
    static constexpr char EffectId[] = "dehaze";

    double amount = 0;

    static constexpr ParameterRow<DehazeParameters> Table[] = {
        {"amount", &DehazeParameters::amount, -100, 100, "%"}};

    bool IsIdentity() const { return amount == 0; }
};

EffectKind MakeDehazeKind();

} // namespace LumetraHost
