// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/contrast/ContrastEffect.h"

#include "engine/effects/contrast/ContrastParameters.h"
#include "engine/effects/contrast/ContrastStage.h"

namespace LumetraHost {
namespace {

StagePtr CreateContrastStage(const Zorvik::Quindle::IEffectSettings& settings,
                             const StageContext& context)
{
    const auto parameters = ContrastParameters::Read(settings);
    if (parameters.IsIdentity())
        return nullptr;
    return std::make_shared<ContrastStage>(parameters, context);
}

} // namespace

EffectKind MakeContrastKind()
{
    return {{ContrastParameters::EffectId, ContrastParameters::Describe(), {}},
            CreateContrastStage};
}

} // namespace LumetraHost
