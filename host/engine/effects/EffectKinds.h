// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/effects/EffectKind.h"

#include <string>
#include <vector>

namespace LumetraHost {

/// All kinds of effect that this engine draws. Immutable after the first use, so any thread may
/// ask.
class EffectKinds
{
public:
    /// Null when the engine does not know the effect.
    static const EffectKind* Find(const std::string& effectID);
    static const std::vector<EffectKind>& GetAll();
};

/// Makes the engine's effects known to the platform's registry. May be called again.
void RegisterEffects();

} // namespace LumetraHost
