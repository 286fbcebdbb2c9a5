// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/ColourMatrix.h"

#include <vips/vips.h>

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace LumetraBench {

/// A pipeline of libvips on a picture of red, green and blue of 8 bits: each step is put behind the
/// last one, and ToBytes() runs them all. std::runtime_error with the library's words when a step
/// cannot be made. One use, one thread; the library brings the threads that it draws with.
class VipsPipeline
{
public:
    /// `bytes` stay until the pipeline has run.
    VipsPipeline(const std::vector<std::uint8_t>& bytes, int width, int height);
    VipsPipeline(const VipsPipeline&) = delete;
    VipsPipeline& operator=(const VipsPipeline&) = delete;
    ~VipsPipeline();

    void ToLinear();
    void ToEncoded();
    void Multiply(const LumetraHost::ColourMatrix& matrix);
    void Scale(double factor);
    /// Multiplies each channel by `slope` and adds `offset`.
    void Scale(std::array<double, 3> slope, std::array<double, 3> offset);
    void Power(std::array<double, 3> exponent);
    /// Multiplies values of 0 to 255 by `factor` and rounds them.
    void Round(double factor);
    /// Looks channels up in 256 entries of red, green, blue.
    void LookUp(const std::vector<std::uint8_t>& table);
    void Blur(double sigma);
    /// Sharpens in the library's own way, on lightness.
    void Sharpen(double sigma, double amount);

    /// Runs the pipeline; the bytes are in new memory.
    std::shared_ptr<const std::uint8_t> ToBytes();

private:
    void Add(const std::function<int(VipsImage* in, VipsImage** out)>& step);
    VipsImage* Keep(VipsImage* image);

    std::vector<VipsImage*> m_images;
    VipsImage* m_last;
};

} // namespace LumetraBench
