// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/effects/lut3d/LookUpTable.h"
#include "engine/effects/lut3d/Lut3dKernel.h"
#include "engine/stages/Stage.h"

namespace LumetraHost {

/// Runs tables over tiles of encoded values; keeps them alive.
class Lut3dStage : public Stage
{
public:
    /// Either table may be null. `strength`: 0 to 1.
    Lut3dStage(const LookUpTablePtr& curve, const LookUpTablePtr& cube, double strength, Isa isa);

    void Run(const Tile& tile) const override { m_kernel(tile, m_numbers); }
    ColourSpace GetColourSpace() const override { return ColourSpace::Encoded; }

private:
    LookUpTablePtr m_curve;
    LookUpTablePtr m_cube;
    Lut3dNumbers m_numbers;
    void (*m_kernel)(const Tile&, const Lut3dNumbers&);
};

} // namespace LumetraHost
