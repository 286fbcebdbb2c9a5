// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/texture/TextureEffect.h"

#include "engine/effects/MakeKind.h"
#include "engine/effects/texture/TextureKernel.h"
#include "engine/kernels/KernelSelection.h"
#include "engine/stages/LumaPass.h"

namespace LumetraHost {
namespace {

SpatialPassPtr CreatePass(const TextureParameters& parameters, const StageContext& context)
{
    return MakeLumaPass(SelectKernel<TextureKernel>(context.isa),
                        MakeRelativeShape(parameters.radius, context.area),
                        static_cast<float>(parameters.amount / 100));
}

} // namespace

EffectKind MakeTextureKind()
{
    return MakeSpatialKind(QT_TRANSLATE_NOOP("Effects", "Texture"), CreatePass);
}

} // namespace LumetraHost
