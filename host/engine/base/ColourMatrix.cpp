// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/base/ColourMatrix.h"

#include "storage/FailWith.h"

#include <cmath>

namespace LumetraHost {

ColourMatrix ColourMatrix::Diagonal(double red, double green, double blue)
{
    return {{{{red, 0, 0}, {0, green, 0}, {0, 0, blue}}}};
}

bool ColourMatrix::IsDiagonal() const
{
    return rows[0][1] == 0 && rows[0][2] == 0 && rows[1][0] == 0 && rows[1][2] == 0 &&
           rows[2][0] == 0 && rows[2][1] == 0;
}

ColourMatrix ColourMatrix::WithoutRounding() const
{
    constexpr double billionth = 1e-9;
    for (std::size_t i = 0; i < 3; ++i)
        for (std::size_t j = 0; j < 3; ++j)
            if (i != j && !(std::abs(rows[i][j]) < billionth * std::abs(rows[i][i])))
                return *this;
    return Diagonal(rows[0][0], rows[1][1], rows[2][2]);
}

ColourMatrix ColourMatrix::Inverse() const
{
    // By cofactors; with cyclic indexes the signs come out by themselves.
    ColourMatrix adjugate;
    for (std::size_t i = 0; i < 3; ++i)
        for (std::size_t j = 0; j < 3; ++j) {
            const std::size_t a = (j + 1) % 3, b = (j + 2) % 3;
            const std::size_t c = (i + 1) % 3, d = (i + 2) % 3;
            adjugate.rows[i][j] = rows[a][c] * rows[b][d] - rows[a][d] * rows[b][c];
        }
    const double determinant = rows[0][0] * adjugate.rows[0][0] + rows[0][1] * adjugate.rows[1][0] +
                               rows[0][2] * adjugate.rows[2][0];
    if (determinant == 0 || !std::isfinite(determinant))
        FailWith("colour matrix cannot be inverted: its determinant is zero");
    for (auto& row : adjugate.rows)
        for (double& value : row)
            value /= determinant;
    return adjugate;
}

std::array<double, 3> ColourMatrix::Transform(const std::array<double, 3>& colour) const
{
    std::array<double, 3> result{};
    for (std::size_t i = 0; i < 3; ++i)
        result[i] = rows[i][0] * colour[0] + rows[i][1] * colour[1] + rows[i][2] * colour[2];
    return result;
}

ColourMatrix operator*(const ColourMatrix& first, const ColourMatrix& second)
{
    ColourMatrix product;
    for (std::size_t i = 0; i < 3; ++i)
        for (std::size_t j = 0; j < 3; ++j)
            product.rows[i][j] = first.rows[i][0] * second.rows[0][j] +
                                 first.rows[i][1] * second.rows[1][j] +
                                 first.rows[i][2] * second.rows[2][j];
    return product;
}

} // namespace LumetraHost
