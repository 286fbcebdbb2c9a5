// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/effects/EffectKind.h"

namespace LumetraHost {

/// See GrainParameters for what the effect does.
EffectKind MakeGrainKind();

} // namespace LumetraHost
