// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/vibrance/VibranceEffect.h"

#include "engine/effects/MakeKind.h"
#include "engine/effects/vibrance/VibranceKernel.h"
#include "engine/kernels/KernelSelection.h"
#include "engine/stages/KernelStage.h"

namespace LumetraHost {
namespace {

StagePtr CreateStage(const VibranceParameters& parameters, const StageContext& context)
{
    return MakeKernelStage(SelectKernel<VibranceKernel>(context.isa), ColourSpace::Linear,
                           ChannelWork::Mixed, static_cast<float>(parameters.amount / 100));
}

} // namespace

EffectKind MakeVibranceKind()
{
    return MakeKind(QT_TRANSLATE_NOOP("Effects", "Vibrance"), CreateStage);
}

} // namespace LumetraHost
