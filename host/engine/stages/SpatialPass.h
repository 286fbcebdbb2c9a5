// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/Tile.h"
#include "engine/stages/Stage.h"
#include "image/PictureArea.h"

#include <cmath>
#include <memory>

namespace LumetraHost {

/// The Gaussian that a spatial pass looks at, as standard deviations in rendered pixels.
struct GaussianShape
{
    double sigmaX = 0;
    double sigmaY = 0;
};

/// A Gaussian whose standard deviation is a share, in per cent, of the whole picture's diagonal,
/// converted to rendered pixels: a preview then shows the blur that the full picture gets.
inline GaussianShape MakeRelativeShape(double percentOfDiagonal, const PictureArea& area)
{
    const double sigma =
        percentOfDiagonal / 100 * std::hypot(area.pictureWidth, area.pictureHeight);
    return {sigma / area.scaleX, sigma / area.scaleY};
}

/// The input of a spatial pass's Gaussian.
enum class BlurredPlanes
{
    Luma,   ///< one plane: the weighted sum of the channels (Rec. 709), in the pass's colour space
    Colours ///< three planes
};

/// One row of the blurred picture: one plane for luma, three for colour. As long as the tile.
struct BlurredTile
{
    const float* planes[3] = {nullptr, nullptr, nullptr};
};

/// One effect that needs neighbouring pixels, ready to run: it combines each pixel with a Gaussian
/// of the picture around it. Immutable and shared by all threads, like a stage.
class SpatialPass
{
public:
    SpatialPass() = default;
    SpatialPass(const SpatialPass&) = delete;
    SpatialPass& operator=(const SpatialPass&) = delete;
    virtual ~SpatialPass() = default;

    virtual GaussianShape GetShape() const = 0;
    virtual BlurredPlanes GetPlanes() const = 0;
    /// Changes the tile in place. Values may lie outside [0, 1] before and after.
    virtual void Combine(const Tile& tile, const BlurredTile& blurred) const = 0;
    /// The space in which the pass expects and leaves the pixels, and in which they are blurred.
    virtual ColourSpace GetColourSpace() const { return ColourSpace::Encoded; }
};

using SpatialPassPtr = std::shared_ptr<const SpatialPass>;

} // namespace LumetraHost
