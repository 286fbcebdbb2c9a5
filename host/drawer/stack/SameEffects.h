// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Quindle/EffectsSettings.h"

namespace LumetraHost {

/// True when the engine draws both alike: the same effect with the same described parameters. What
/// the engine does not read is not compared. Effects that are more than numbers are compared in
/// their stored form.
bool AreSameEffects(const Zorvik::Quindle::EffectPtr& first,
                    const Zorvik::Quindle::EffectPtr& second);

/// The same for all effects, in order, and the blend amount.
bool DrawTheSame(const Zorvik::Quindle::EffectsSettings& first,
                 const Zorvik::Quindle::EffectsSettings& second);

} // namespace LumetraHost
