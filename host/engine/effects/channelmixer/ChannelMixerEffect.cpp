// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/channelmixer/ChannelMixerEffect.h"

#include "engine/effects/channelmixer/ChannelMixerParameters.h"
#include "engine/stages/MatrixStage.h"

namespace LumetraHost {
namespace {

StagePtr CreateChannelMixerStage(const Zorvik::Quindle::IEffectSettings& settings,
                                 const StageContext& context)
{
    const auto parameters = ChannelMixerParameters::Read(settings);
    if (parameters.IsIdentity())
        return nullptr;
    return std::make_shared<MatrixStage>(parameters.GetMatrix(), ColourSpace::Linear, context.isa);
}

} // namespace

EffectKind MakeChannelMixerKind()
{
    return {{ChannelMixerParameters::EffectId, ChannelMixerParameters::Describe(), {}},
            CreateChannelMixerStage};
}

} // namespace LumetraHost
