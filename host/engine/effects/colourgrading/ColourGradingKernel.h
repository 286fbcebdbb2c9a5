// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/Isa.h"
#include "engine/base/Tile.h"

namespace LumetraHost {

/// The tints of the ranges (red, green, blue), where the weights of shadows and highlights begin to
/// change, and the curve of luma as a sum over its pieces: sum of
/// t * (linear + t * (square + t * cube)), where t is luma less the piece's start, limited to
/// 0..width.
struct ColourGradingNumbers
{
    static constexpr int Pieces = 4;

    float shadow[3] = {};
    float midtone[3] = {};
    float highlight[3] = {};
    float shadowBegin = 0;
    float shadowScale = 1;
    float highlightBegin = 0;
    float highlightScale = 1;
    float start[Pieces] = {};
    float width[Pieces] = {};
    float linear[Pieces] = {};
    float square[Pieces] = {};
    float cube[Pieces] = {};
};

/// Lightens and tints a tile of encoded values; see ColourGradingParameters.
template <Isa isa>
struct ColourGradingKernel
{
    static void Run(const Tile& tile, const ColourGradingNumbers& numbers);
};

} // namespace LumetraHost
