// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/vibrance/VibranceEffect.h"

#include "engine/kernels/KernelSelection.h"
#include "engine/kernels/NumbersStage.h"
#include "engine/vibrance/VibranceKernel.h"
#include "engine/vibrance/VibranceParameters.h"

namespace LumetraHost {
namespace {

StagePtr CreateVibranceStage(const Zorvik::Quindle::IEffectSettings& settings,
                             const StageContext& context)
{
    const auto parameters = VibranceParameters::Read(settings);
    if (parameters.IsIdentity())
        return nullptr;
    return std::make_shared<NumbersStage<float>>(ColourSpace::Linear,
                                                 static_cast<float>(parameters.amount / 100),
                                                 SelectKernel<VibranceKernel>(context.isa));
}

} // namespace

EffectKind MakeVibranceKind()
{
    return {{VibranceParameters::EffectId, VibranceParameters::Describe(), {}},
            CreateVibranceStage};
}

} // namespace LumetraHost
