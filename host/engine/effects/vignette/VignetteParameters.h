// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/PictureArea.h"

#include "Zorvik/Quindle/EffectRegistry.h"
#include "Zorvik/Quindle/IEffectSettings.h"

#include <vector>

namespace LumetraHost {

/// Vignette: linear light falls off (or rises) towards the corners, multiplied by
/// 1 + (2^amount - 1) * w. w is 0 inside, 1 outside and in between Hermite's 3t^2 - 2t^3 (Ebert et
/// al., Texturing and Modeling), t running over the feather. The distance d is 0 in the centre and
/// 1 in the corners on ellipses: of the picture's proportions with roundness 0, circles with 100.
/// The fall-off begins at d = size and ends at d = size + feather * (1 - size).
/// That a lens's vignetting multiplies linear light: Goldman, IEEE PAMI 32 (2010).
struct VignetteParameters
{
    static constexpr char EffectId[] = "vignette";

    double amount = 0;    ///< in the corners, -5 (dark) to 5 (bright) stops
    double size = 40;     ///< 0 to 100 per cent of the way from the centre to the corners
    double feather = 100; ///< 0 (hard edge) to 100 per cent of the way from there to the corners
    double roundness = 0; ///< 0 (the picture's proportions) to 100 (circle) per cent

    static const std::vector<Zorvik::Quindle::EffectParameter>& Describe();
    /// Clamped to the described ranges.
    static VignetteParameters Read(const Zorvik::Quindle::IEffectSettings& settings);

    bool IsIdentity() const { return amount == 0 || size >= 100; }
};

/// Equal when both draw the same.
bool operator==(const VignetteParameters& first, const VignetteParameters& second);

/// The fall-off worked out for one picture: t = d * slope + start, d^2 = (x * stepX + startX)^2 +
/// (y * stepY + startY)^2 for the rendered pixel (x, y); factor = 1 + gain * w(t).
struct VignetteGeometry
{
    double stepX = 0;
    double startX = 0;
    double stepY = 0;
    double startY = 0;
    double slope = 0;
    double start = 0;
    double gain = 0;

    static VignetteGeometry Make(const VignetteParameters& parameters, const PictureArea& area);
};

} // namespace LumetraHost
