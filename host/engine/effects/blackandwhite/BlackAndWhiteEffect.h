// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/effects/EffectKind.h"

namespace LumetraHost {

/// See BlackAndWhiteParameters for what the effect does.
EffectKind MakeBlackAndWhiteKind();

} // namespace LumetraHost
