// SPDX-License-Identifier: GPL-2.0-or-later
#include "workspace/DisplayConverter.h"

#include "Zorvik/Proc/Frame.h"

namespace LumetraHost {
namespace {

using Zorvik::Proc::Frame;
using Zorvik::Proc::PixelFormat;

std::uint8_t ToByte(float value)
{
    if (!(value > 0.0f))
        return 0;
    return value < 1.0f ? static_cast<std::uint8_t>(value * 255.0f + 0.5f) : 255;
}

Frame ToBytes(const Frame& frame)
{
    if (frame.format == PixelFormat::Rgba8Premultiplied)
        return frame;
    Frame bytes = Frame::Allocate(frame.width, frame.height, PixelFormat::Rgba8Premultiplied);
    bytes.pixelAspect = frame.pixelAspect;
    for (int y = 0; y < frame.height; ++y) {
        const auto row = static_cast<std::size_t>(y);
        const auto* const from =
            reinterpret_cast<const float*>(frame.pixels.get() + row * frame.stride);
        std::uint8_t* const to = bytes.pixels.get() + row * bytes.stride;
        for (int i = 0; i < 4 * frame.width; ++i)
            to[i] = ToByte(from[i]);
    }
    return bytes;
}

} // namespace

Frame DisplayConverter::ToDisplay(const Frame& frame) const
{
    if (frame.IsNull())
        return frame;
    const Frame bytes = ToBytes(frame);
    if (!m_display)
        return bytes;
    Frame shown = Frame::Allocate(frame.width, frame.height, PixelFormat::Rgba8Premultiplied);
    shown.pixelAspect = frame.pixelAspect;
    m_display->ApplyPremultiplied(bytes.pixels.get(), static_cast<std::size_t>(bytes.stride),
                                  shown.pixels.get(), static_cast<std::size_t>(shown.stride),
                                  frame.width, frame.height);
    return shown;
}

} // namespace LumetraHost
