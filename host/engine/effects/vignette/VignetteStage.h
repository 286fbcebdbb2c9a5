// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/effects/vignette/VignetteKernel.h"
#include "engine/effects/vignette/VignetteParameters.h"
#include "engine/stages/Stage.h"

namespace LumetraHost {

/// Runs the vignette over tiles of linear light.
class VignetteStage : public Stage
{
public:
    VignetteStage(const VignetteParameters& parameters, const StageContext& context);

    void Run(const Tile& tile) const override;

private:
    VignetteGeometry m_geometry;
    void (*m_kernel)(const Tile&, const VignetteRow&);
};

} // namespace LumetraHost
