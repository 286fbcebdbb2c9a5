// SPDX-License-Identifier: GPL-2.0-or-later
#include "image/FrameConversion.h"

namespace LumetraHost {
namespace {

using Zorvik::Proc::Frame;
using Zorvik::Proc::PixelFormat;

std::uint8_t MultiplyRounded(unsigned value, unsigned alpha)
{
    return static_cast<std::uint8_t>((value * alpha + 127) / 255);
}

void ConvertRow8(const std::uint8_t* from, std::uint8_t* to, int pixels)
{
    for (int i = 0; i < 4 * pixels; i += 4) {
        const unsigned alpha = from[i + 3];
        to[i] = MultiplyRounded(from[i], alpha);
        to[i + 1] = MultiplyRounded(from[i + 1], alpha);
        to[i + 2] = MultiplyRounded(from[i + 2], alpha);
        to[i + 3] = from[i + 3];
    }
}

void ConvertRow16(const std::uint16_t* from, float* to, int pixels)
{
    constexpr float White = 65535.0f;
    for (int i = 0; i < 4 * pixels; i += 4) {
        const float alpha = from[i + 3] / White;
        to[i] = from[i] / White * alpha;
        to[i + 1] = from[i + 1] / White * alpha;
        to[i + 2] = from[i + 2] / White * alpha;
        to[i + 3] = alpha;
    }
}

} // namespace

Frame ImageToFrame(const Image& image)
{
    if (image.IsNull())
        return {};
    const bool is16 = image.GetDepth() == Image::Depth::Bits16;
    const auto format =
        is16 ? PixelFormat::RgbaFloatPremultiplied : PixelFormat::Rgba8Premultiplied;
    Frame frame = Frame::Allocate(image.GetWidth(), image.GetHeight(), format);
    for (int y = 0; y < frame.height; ++y) {
        std::uint8_t* const row = frame.pixels.get() + static_cast<std::size_t>(y) * frame.stride;
        if (is16)
            ConvertRow16(image.Row16(y), reinterpret_cast<float*>(row), frame.width);
        else
            ConvertRow8(image.Row(y), row, frame.width);
    }
    return frame;
}

} // namespace LumetraHost
