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
    std::string name; ///< of the correction in the file, else of the file
    Zorvik::Quindle::EffectPtr effect;
    /// The name that a table gives itself, UTF-8 in one line; empty where it says nothing.
    std::string title = {};
};

using LutLooks = std::vector<LutLook>;

} // namespace LumetraHost
