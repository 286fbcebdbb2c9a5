// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace Zorvik::Proc {

/// A colour has 8 bits per channel and is not premultiplied with its alpha. It is opaque black
/// unless values are given.
struct Color
{
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    std::uint8_t alpha = 255;

    constexpr Color() = default;
    /// Takes all four values as they are, 0 to 255; alpha 255 is opaque.
    constexpr Color(std::uint8_t redValue, std::uint8_t greenValue, std::uint8_t blueValue,
                    std::uint8_t alphaValue)
        : red(redValue), green(greenValue), blue(blueValue), alpha(alphaValue)
    {
    }
};

} // namespace Zorvik::Proc
