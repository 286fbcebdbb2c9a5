// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <vector>

namespace LumetraHost {

/// Colours over a regular grid of colours: a curve for each channel, or a cube. Between the entries
/// colours are interpolated, outside the domain they are those of its border.
struct LookUpTable
{
    enum class Kind
    {
        Curve,
        Cube
    };

    static constexpr int LargestCurve = 65536;
    static constexpr int LargestCube = 129;
    /// Floats of one entry: red, green, blue and one that is not used.
    static constexpr std::size_t Stride = 4;

    Kind kind = Kind::Cube;
    int size = 0;                              ///< entries along each axis, at least 2
    std::array<double, 3> minimum = {0, 0, 0}; ///< the domain, for each channel
    std::array<double, 3> maximum = {1, 1, 1};
    std::vector<float> values; ///< red runs fastest, then green, then blue

    static int GetLargestSize(Kind kind) { return kind == Kind::Cube ? LargestCube : LargestCurve; }
    /// Entries of a table of that size.
    static std::size_t GetCount(Kind kind, int size);
    std::size_t GetCount() const { return GetCount(kind, size); }

    /// The table that changes no colour of its domain.
    static LookUpTable MakeIdentity(Kind kind, int size, const std::array<double, 3>& minimum,
                                    const std::array<double, 3>& maximum);
};

using LookUpTablePtr = std::shared_ptr<const LookUpTable>;

} // namespace LumetraHost
