// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/effects/lut3d/LookUpTable.h"

#include "Zorvik/Quindle/EffectsSettings.h"

#include <string>
#include <vector>

namespace LumetraHost {

/// Turns a look into a table, which LutWriter writes for other programs. Only effects of colour
/// alone fit into one.
class LookExport
{
public:
    static constexpr int SmallestSize = 2;
    static constexpr int LargestSize = LookUpTable::LargestCube;

    /// The ids of the effects that depend on the place or on neighbouring pixels and would change
    /// something, and of those that the engine does not know; each once, in order.
    static std::vector<std::string> FindUnfitEffects(const Zorvik::Quindle::EffectsSettings& look);

    /// The message of MakeTable() about such effects, of which there is at least one.
    static std::string DescribeUnfit(const std::vector<std::string>& names);
    /// The look without those effects. The effects are shared with `look`.
    static Zorvik::Quindle::EffectsSettings
    TakeColours(const Zorvik::Quindle::EffectsSettings& look);
    /// True when the look leaves every picture as it is.
    static bool ChangesNothing(const Zorvik::Quindle::EffectsSettings& look);

    /// The look, mixed with the source as its blend amount says, on every colour of a cube of
    /// encoded sRGB; computed exactly, limited to 0..1 and rounded to 16 bits. Zorvik::Exception
    /// that names the effects when some do not fit, and for a size out of range.
    static LookUpTable MakeTable(const Zorvik::Quindle::EffectsSettings& look, int size);
};

} // namespace LumetraHost
