// SPDX-License-Identifier: GPL-2.0-or-later
#include "common/Effects.h"

#include "Zorvik/Quindle/EffectSettingsImpl.h"

namespace LumetraBench {

using Zorvik::Quindle::EffectPtr;

EffectPtr MakeEffect(const std::string& id,
                     const std::vector<std::pair<std::string, double>>& parameters)
{
    const EffectPtr effect = Zorvik::Quindle::EffectSettingsImpl::Create(id);
    for (const auto& [name, value] : parameters)
        effect->SetParameter(name, value);
    return effect;
}

Zorvik::Quindle::EffectList MakeFiveColourEffects(double stops)
{
    return {MakeEffect("exposure", {{"stops", stops}}),
            MakeEffect("whiteBalance", {{"temperature", 7000}}),
            MakeEffect("contrast", {{"amount", 20}}), MakeEffect("saturation", {{"amount", 20}}),
            MakeEffect("liftGammaGain",
                       {{"slopeRed", 1.05}, {"offsetBlue", 0.02}, {"powerGreen", 0.95}})};
}

} // namespace LumetraBench
