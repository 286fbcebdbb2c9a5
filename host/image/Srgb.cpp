// SPDX-License-Identifier: GPL-2.0-or-later
#include "image/Srgb.h"

#include <cmath>
#include <cstddef>
#include <vector>

namespace LumetraHost {
namespace {

std::vector<float> MakeDecodeTable(std::size_t size)
{
    std::vector<float> table(size);
    for (std::size_t i = 0; i < size; ++i)
        table[i] = static_cast<float>(
            SrgbToLinear(static_cast<double>(i) / static_cast<double>(size - 1)));
    return table;
}

} // namespace

double SrgbToLinear(double encoded)
{
    const double size = std::abs(encoded);
    const double linear = size <= 0.04045 ? size / 12.92 : std::pow((size + 0.055) / 1.055, 2.4);
    return std::copysign(linear, encoded);
}

double LinearToSrgb(double linear)
{
    const double size = std::abs(linear);
    const double encoded =
        size <= 0.0031308 ? size * 12.92 : 1.055 * std::pow(size, 1.0 / 2.4) - 0.055;
    return std::copysign(encoded, linear);
}

const float* GetSrgbDecodeTable8()
{
    static const std::vector<float> table = MakeDecodeTable(256);
    return table.data();
}

const float* GetSrgbDecodeTable16()
{
    static const std::vector<float> table = MakeDecodeTable(65536);
    return table.data();
}

} // namespace LumetraHost
