// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace Zorvik::Proc {

/// An 8-bit colour; not premultiplied.
struct Color
{
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    std::uint8_t alpha = 255;

    constexpr Color() = default;
    constexpr Color(std::uint8_t redValue, std::uint8_t greenValue, std::uint8_t blueValue,
                    std::uint8_t alphaValue)
        : red(redValue), green(greenValue), blue(blueValue), alpha(alphaValue)
    {
    }
};

} // namespace Zorvik::Proc
