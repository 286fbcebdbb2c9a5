// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/clarity/ClarityEffect.h"

#include "engine/effects/MakeKind.h"
#include "engine/effects/clarity/ClarityKernel.h"
#include "engine/kernels/KernelSelection.h"
#include "engine/stages/LumaPass.h"

namespace LumetraHost {
namespace {

SpatialPassPtr CreatePass(const ClarityParameters& parameters, const StageContext& context)
{
    return MakeLumaPass(SelectKernel<ClarityKernel>(context.isa),
                        MakeRelativeShape(parameters.radius, context.area),
                        static_cast<float>(parameters.amount / 100));
}

} // namespace

EffectKind MakeClarityKind()
{
    return MakeSpatialKind(QT_TRANSLATE_NOOP("Effects", "Clarity"), CreatePass);
}

} // namespace LumetraHost
