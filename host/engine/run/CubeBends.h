// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "threads/ThreadPool.h"

#include <cstdint>

namespace LumetraHost {

/// Finds where a cube (see ColourCube) bends too sharply for interpolation between its entries. The
/// error of an interpolated colour is a fraction of the second difference of the entries around it:
/// a cell is marked when that of one of its corners, along an axis or the grey diagonal, is above
/// `Limit`, which keeps the error of all other cells below a step of 8 bits. Sharp bends are usual
/// where colours leave the range of a picture: the encoding is steep near black.
class CubeBends
{
public:
    /// Limit of the second differences, in steps of 8 bits.
    static constexpr int Limit = 4;
    /// Second differences above this are jumps, in steps of 8 bits.
    static constexpr int Jump = 100;

    /// Marks the first corner of every cell that bends, in the fourth value of its entry, whose
    /// other entries are 0. `cube` has `points` entries along each axis.
    CubeBends(std::int16_t* cube, int points, ThreadPool& pool);

    /// Share of the marked cells in all cells, 0 to 1.
    double GetMarkedShare() const { return m_markedShare; }
    bool HasJump() const { return m_hasJump; }

private:
    double m_markedShare = 0;
    bool m_hasJump = false;
};

} // namespace LumetraHost
