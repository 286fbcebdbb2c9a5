// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Quindle/EffectsSettings.h"

#include <cstddef>

namespace LumetraBench {

/// Five effects of colour: exposure, white balance, contrast, saturation, lift-gamma-gain.
struct GradingChain
{
    double stops = 0.4;
    double temperature = 5600;
    double tint = 6;
    double contrast = 20;
    double slope[3] = {1.05, 1.0, 0.96};
    double offset[3] = {0.01, 0.0, -0.01};
    double power[3] = {0.97, 1.0, 1.04};
    double saturation = 15;

    Zorvik::Quindle::EffectList MakeEffects() const;
    /// The effects while that of `position` is dragged; `flip` makes neighbouring ticks differ.
    Zorvik::Quindle::EffectList MakeTick(std::size_t position, bool flip) const;
    /// A chain with less of every effect; `strength`: 0 to 1.
    GradingChain GetWeaker(double strength) const;
};

} // namespace LumetraBench
