// SPDX-License-Identifier: GPL-2.0-or-later
#include "GradingChain.h"

#include "common/Effects.h"
#include "engine/effects/EffectKinds.h"

#include <string>
#include <utility>
#include <vector>

namespace LumetraBench {

Zorvik::Quindle::EffectList GradingChain::MakeEffects() const
{
    LumetraHost::RegisterEffects();
    std::vector<std::pair<std::string, double>> cdl;
    const char* const names[] = {"Red", "Green", "Blue"};
    for (int i = 0; i < 3; ++i) {
        cdl.emplace_back(std::string("slope") + names[i], slope[i]);
        cdl.emplace_back(std::string("offset") + names[i], offset[i]);
        cdl.emplace_back(std::string("power") + names[i], power[i]);
    }
    return {MakeEffect("exposure", {{"stops", stops}}),
            MakeEffect("whiteBalance", {{"temperature", temperature}, {"tint", tint}}),
            MakeEffect("contrast", {{"amount", contrast}}),
            MakeEffect("saturation", {{"amount", saturation}}), MakeEffect("liftGammaGain", cdl)};
}

Zorvik::Quindle::EffectList GradingChain::MakeTick(std::size_t position, bool flip) const
{
    GradingChain other = *this;
    other.stops += flip ? 0.05 : 0.06;
    other.tint += flip ? 0.5 : 0.6;
    other.contrast += flip ? 1 : 2;
    other.slope[0] += flip ? 0.01 : 0.02;
    other.saturation += flip ? 1 : 2;
    Zorvik::Quindle::EffectList effects = MakeEffects();
    effects[position] = other.MakeEffects()[position];
    return effects;
}

GradingChain GradingChain::GetWeaker(double strength) const
{
    GradingChain weaker = *this;
    weaker.stops *= strength;
    weaker.temperature = 6500 + strength * (temperature - 6500);
    weaker.tint *= strength;
    weaker.contrast *= strength;
    weaker.saturation *= strength;
    for (int i = 0; i < 3; ++i) {
        weaker.slope[i] = 1 + strength * (slope[i] - 1);
        weaker.offset[i] *= strength;
        weaker.power[i] = 1 + strength * (power[i] - 1);
    }
    return weaker;
}

} // namespace LumetraBench
