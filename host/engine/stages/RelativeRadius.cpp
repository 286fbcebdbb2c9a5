// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/stages/RelativeRadius.h"

#include <cmath>

namespace LumetraHost {

GaussianShape MakeRelativeShape(double percentOfDiagonal, const PictureArea& area)
{
    const double sigma =
        percentOfDiagonal / 100 * std::hypot(area.pictureWidth, area.pictureHeight);
    return {sigma / area.scaleX, sigma / area.scaleY};
}

} // namespace LumetraHost
