// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <array>

namespace LumetraHost {

/// A 3 x 3 matrix on red, green, blue, in double precision: rows give the new channels.
struct ColourMatrix
{
    std::array<std::array<double, 3>, 3> rows = {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};

    static ColourMatrix Diagonal(double red, double green, double blue);

    bool IsIdentity() const { return rows == ColourMatrix().rows; }
    /// The matrix without what is left of zeros after products: values beside the diagonal that
    /// are below a billionth of those on it, when all of them are.
    ColourMatrix WithoutRounding() const;
    /// True when no channel depends on another.
    bool IsDiagonal() const;
    /// Zorvik::Exception when the matrix is singular.
    ColourMatrix Inverse() const;
    std::array<double, 3> Transform(const std::array<double, 3>& colour) const;
};

/// The matrix that first does `second`, then `first`.
ColourMatrix operator*(const ColourMatrix& first, const ColourMatrix& second);

} // namespace LumetraHost
