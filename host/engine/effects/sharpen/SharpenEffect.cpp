// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/sharpen/SharpenEffect.h"

#include "engine/effects/MakeKind.h"
#include "engine/effects/sharpen/SharpenKernel.h"
#include "engine/kernels/KernelSelection.h"
#include "engine/stages/LumaPass.h"

namespace LumetraHost {
namespace {

SpatialPassPtr CreatePass(const SharpenParameters& parameters, const StageContext& context)
{
    return MakeLumaPass(SelectKernel<SharpenKernel>(context.isa),
                        MakeRelativeShape(parameters.radius, context.area),
                        static_cast<float>(parameters.amount / 100),
                        static_cast<float>(parameters.threshold / 255));
}

} // namespace

EffectKind MakeSharpenKind()
{
    return MakeSpatialKind(QT_TRANSLATE_NOOP("Effects", "Sharpening"), CreatePass);
}

} // namespace LumetraHost
