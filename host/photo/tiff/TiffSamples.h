// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/Image.h"

#include <array>
#include <cstdint>

namespace LumetraHost {

/// How the samples of an uncompressed TIFF row become the four channels of a picture. Samples have
/// 8 or 16 bits in the machine's byte order and lie pixel by pixel or in planes.
struct TiffSamples
{
    static constexpr int None = -1;

    int bytes = 1;                            ///< per sample, 1 or 2
    int perPixel = 1;                         ///< samples from one pixel to the next
    std::array<int, 4> source{0, 0, 0, None}; ///< the sample of each channel; None is full
    bool invert = false;                      ///< the colours, not the alpha
    bool premultiplied = false;               ///< the colours by alpha

    /// Writes `count` pixels of `row`, which belongs to plane `plane`, to the picture at x, y.
    void Scatter(const std::uint8_t* row, int plane, Image& target, int x, int y, int count) const;
    /// Fills channels that have no sample, and converts the rest to the picture's own form.
    void Finish(Image& target) const;

    /// Divides the colours by alpha, to the nearest and clamped; black where alpha is 0.
    static void Unpremultiply(Image& image);
};

} // namespace LumetraHost
