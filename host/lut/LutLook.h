// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Quindle/IEffectSettings.h"

#include <string>
#include <vector>

namespace LumetraHost {

/// The look of a LUT file: a name and one effect, "lut3d" for tables and "liftGammaGain" for colour
/// decision lists.
struct LutLook
{
    std::string name;
    Zorvik::Quindle::EffectPtr effect;
};

using LutLooks = std::vector<LutLook>;

} // namespace LumetraHost
