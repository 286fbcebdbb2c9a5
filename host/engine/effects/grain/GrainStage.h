// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/effects/grain/GrainKernel.h"
#include "engine/effects/grain/GrainParameters.h"
#include "engine/stages/Stage.h"

namespace LumetraHost {

/// Adds grain to tiles of encoded values.
class GrainStage : public Stage
{
public:
    GrainStage(const GrainParameters& parameters, const StageContext& context);

    void Run(const Tile& tile) const override;
    ColourSpace GetColourSpace() const override { return ColourSpace::Encoded; }

private:
    GrainGeometry m_geometry;
    void (*m_kernel)(const Tile&, const GrainRow&);
};

} // namespace LumetraHost
