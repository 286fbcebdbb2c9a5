// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/effects/lut3d/LookUpTable.h"

#include <string>
#include <vector>

namespace LumetraTools {

/// The colour tables of the shipped presets, each computed from a few formulas of our own on
/// sRGB-encoded values. They are looks, not measurements of any film.
class FilmTables
{
public:
    /// Entries along each axis. The formulas are smooth enough for so few.
    static constexpr int PointsPerAxis = 9;

    static std::vector<std::string> GetNames();
    /// Exception for a name that is none of GetNames().
    static LumetraHost::LookUpTable Make(const std::string& name);
};

} // namespace LumetraTools
