// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Vec3.h"

#include <vector>

namespace LumetraSample {

/// Scene light in rows from the top, `width` times `height` pixels.
struct LightImage
{
    int width = 0;
    int height = 0;
    std::vector<Vec3> pixels;
};

} // namespace LumetraSample
