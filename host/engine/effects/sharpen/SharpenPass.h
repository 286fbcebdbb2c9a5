// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/effects/sharpen/SharpenParameters.h"
#include "engine/stages/SpatialPass.h"

namespace LumetraHost {

/// Adds the difference to the blurred luma, in encoded space.
class SharpenPass : public SpatialPass
{
public:
    SharpenPass(const SharpenParameters& parameters, const StageContext& context);

    GaussianShape GetShape() const override { return m_shape; }
    BlurredPlanes GetPlanes() const override { return BlurredPlanes::Luma; }
    void Combine(const Tile& tile, const BlurredTile& blurred) const override;

private:
    GaussianShape m_shape;
    float m_amount;
    float m_threshold;
    void (*m_kernel)(const Tile&, const float*, float, float);
};

} // namespace LumetraHost
