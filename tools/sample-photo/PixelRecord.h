// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Vec3.h"

namespace LumetraSample {

/// The results of one pixel's light paths, each as a mean over them.
struct PixelRecord
{
    /// Light that needs no smoothing: sun, mirrored light and the landscape.
    Vec3 direct;
    /// Diffuse colour of the still life, weighted with the share of paths that met it.
    Vec3 albedo;
    /// Light from all around that falls on the still life, without the albedo.
    Vec3 gathered;
    Vec3 normal;
    /// Metres to the still life; 0 where no path met it.
    float depth = 0.0f;
};

} // namespace LumetraSample
