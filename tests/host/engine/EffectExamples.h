// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Quindle/IEffectSettings.h"

#include <vector>

namespace LumetraHost {

/// One effect with three settings. The first two are drawn in the pictures of the folder golden.
struct EffectExample
{
    Zorvik::Quindle::EffectPtr gentle;
    Zorvik::Quindle::EffectPtr strong;
    /// It changes nothing, although other parameters are far from their defaults.
    Zorvik::Quindle::EffectPtr neutral;
};

/// One for each effect that the engine draws.
std::vector<EffectExample> MakeEffectExamples();

} // namespace LumetraHost
