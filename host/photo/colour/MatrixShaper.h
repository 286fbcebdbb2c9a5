// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/Image.h"

#include <array>
#include <vector>

namespace LumetraHost {

/// Converts from an RGB colour space given by three curves and a matrix (Adobe RGB, Display P3,
/// ProPhoto) to sRGB, by table and in single precision:
///   linear = curve(value), linear sRGB = M * linear, result = sRGB encoding (IEC 61966-2-1),
/// clamped to 0..1. The general transform of the colour library is coarse or slow at 16 bits.
class MatrixShaper
{
public:
    using Matrix = std::array<std::array<double, 3>, 3>;

    /// `curves` are sampled at equal distances from 0 to 1, one sample per value of `depth`: 256 or
    /// 65,536 each. `toSrgb` acts on linear values.
    MatrixShaper(std::array<std::vector<float>, 3> curves, const Matrix& toSrgb);

    /// Converts the rows from `first` up to `last`, without it, in place. The picture has the depth
    /// of the curves. Alpha is left alone.
    void Convert(Image& image, int first, int last) const;

private:
    float Encode(float linear) const;
    template <class Value>
    void ConvertRow(Value* row, int width) const;

    std::array<std::vector<float>, 3> m_curves;
    std::array<std::array<float, 3>, 3> m_matrix;
    std::vector<float> m_encoding; ///< sRGB of linear 0..1
};

} // namespace LumetraHost
