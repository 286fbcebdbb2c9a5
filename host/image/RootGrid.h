// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace LumetraHost {

/// How a table of a transfer curve lies over linear light: evenly over its fourth root, from black
/// to five times white. Curves of photos are nearly straight there, so that straight pieces between
/// the nodes are exact enough for 16 bits.
struct RootGrid
{
    static constexpr int PiecesOfUnit = 4096;
    static constexpr int Pieces = PiecesOfUnit * 3 / 2;
    static constexpr int Nodes = Pieces + 1;
};

} // namespace LumetraHost
