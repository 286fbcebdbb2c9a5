// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/effects/MakeKind.h"
#include "engine/kernels/KernelSelection.h"
#include "engine/stages/LumaPass.h"

namespace LumetraHost {

/// The kind of effects that change a colour by how far its luma is from that around it: `amount` in
/// per cent, and the Gaussian's `radius` in per cent of the picture's diagonal.
template <class Parameters, template <Isa> class Kernel>
EffectKind MakeLocalContrastKind(const char* title)
{
    return MakeSpatialKind<Parameters>(
        title, [](const Parameters& parameters, const StageContext& context) -> SpatialPassPtr {
            return MakeLumaPass(SelectKernel<Kernel>(context.isa),
                                MakeRelativeShape(parameters.radius, context.area),
                                static_cast<float>(parameters.amount / 100));
        });
}

} // namespace LumetraHost
