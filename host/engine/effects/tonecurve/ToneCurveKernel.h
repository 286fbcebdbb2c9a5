// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/Isa.h"
#include "engine/base/Tile.h"

namespace LumetraHost {

/// A curve as a sum over its pieces: y = start + before * min(x - first, 0) +
/// after * max(x - last, 0) + sum of t * (linear + t * (square + t * cube)), where t is x less the
/// piece's begin, limited to 0..width. No pieces: no curve.
struct ToneCurveNumbers
{
    static constexpr int MostPieces = 15;

    int pieces = 0;
    float start = 0;
    float first = 0;
    float last = 1;
    float before = 1;
    float after = 1;
    float begin[MostPieces] = {};
    float width[MostPieces] = {};
    float linear[MostPieces] = {};
    float square[MostPieces] = {};
    float cube[MostPieces] = {};
};

/// The master curve and those of red, green and blue.
struct ToneCurvesNumbers
{
    ToneCurveNumbers master;
    ToneCurveNumbers channels[3];
};

/// The master curve, then the channel's own, on each plane.
template <Isa isa>
struct ToneCurveKernel
{
    static void Run(const Tile& tile, const ToneCurvesNumbers& numbers);
};

} // namespace LumetraHost
