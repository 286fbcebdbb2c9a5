// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/effects/EffectKind.h"

namespace LumetraHost {

/// See Lut3dParameters for what the effect does.
EffectKind MakeLut3dKind();

} // namespace LumetraHost
