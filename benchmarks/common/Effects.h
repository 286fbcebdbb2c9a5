// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Quindle/EffectsSettings.h"

#include <string>
#include <utility>
#include <vector>

namespace LumetraBench {

/// An effect with these parameters; others have their defaults. The effect must be registered, see
/// LumetraHost::RegisterEffects().
Zorvik::Quindle::EffectPtr
MakeEffect(const std::string& id, const std::vector<std::pair<std::string, double>>& parameters);

/// Five effects that the peers have too: exposure, white balance, contrast, saturation,
/// lift-gamma-gain. `stops`: of the exposure.
Zorvik::Quindle::EffectList MakeFiveColourEffects(double stops = 0.4);

} // namespace LumetraBench
