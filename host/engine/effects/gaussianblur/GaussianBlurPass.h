// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/effects/gaussianblur/GaussianBlurParameters.h"
#include "engine/stages/SpatialPass.h"

namespace LumetraHost {

/// Puts the blurred picture in the place of the picture, in linear light.
class GaussianBlurPass : public SpatialPass
{
public:
    GaussianBlurPass(const GaussianBlurParameters& parameters, const StageContext& context);

    GaussianShape GetShape() const override { return m_shape; }
    BlurredPlanes GetPlanes() const override { return BlurredPlanes::Colours; }
    void Combine(const Tile& tile, const BlurredTile& blurred) const override;
    ColourSpace GetColourSpace() const override { return ColourSpace::Linear; }

private:
    GaussianShape m_shape;
};

} // namespace LumetraHost
