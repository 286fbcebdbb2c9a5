// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/effects/clarity/ClarityParameters.h"
#include "engine/stages/SpatialPass.h"

namespace LumetraHost {

/// Adds the weighted difference to the blurred luma, in encoded space.
class ClarityPass : public SpatialPass
{
public:
    ClarityPass(const ClarityParameters& parameters, const StageContext& context);

    GaussianShape GetShape() const override { return m_shape; }
    BlurredPlanes GetPlanes() const override { return BlurredPlanes::Luma; }
    void Combine(const Tile& tile, const BlurredTile& blurred) const override;

private:
    GaussianShape m_shape;
    float m_amount;
    void (*m_kernel)(const Tile&, const float*, float);
};

} // namespace LumetraHost
