// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/Stage.h"
#include "engine/grain/GrainKernel.h"
#include "engine/grain/GrainParameters.h"

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
