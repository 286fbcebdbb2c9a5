// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/gaussian/PlaneRing.h"

#include <vector>

namespace LumetraHost {

/// One thread's memory for the Gaussian of one picture, see GaussianBands.
struct GaussianScratch
{
    PlaneRing sums;              ///< of the two cells that a row may belong to
    std::vector<float> shrunk;   ///< a row of cells
    std::vector<float> mirrored; ///< a row of cells with the mirrored ones on both sides
    PlaneRing columns;           ///< two rows of cells, blurred in both directions
    int columnCells[2] = {-1, -1};
    PlaneRing row; ///< the prepared row of cells
    std::vector<const float*> before;
    std::vector<const float*> after;
};

} // namespace LumetraHost
