// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Quindle/EffectsSettings.h"

namespace LumetraHost {

/// True when the engine draws both alike: they are of one kind and have equal described parameters.
/// Parameters that the engine does not read are not compared. Effects that are more than numbers
/// are compared in their stored form.
bool AreSameEffects(const Zorvik::Quindle::EffectPtr& first,
                    const Zorvik::Quindle::EffectPtr& second);

/// True when the lists are of the same effects in the same order, and so is the blend amount.
bool DrawTheSame(const Zorvik::Quindle::EffectsSettings& first,
                 const Zorvik::Quindle::EffectsSettings& second);

} // namespace LumetraHost
