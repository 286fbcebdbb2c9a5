// SPDX-License-Identifier: MIT
#include "support/RecordingConverter.h"

#include "support/CallLog.h"

#include "Zorvik/Proc/Frame.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace LumetraTest {

using namespace Zorvik::Proc;

namespace {

Frame Quantised(const Frame& frame)
{
    Frame result = Frame::Allocate(frame.width, frame.height, PixelFormat::Rgba8Premultiplied);
    result.pixelAspect = frame.pixelAspect;
    for (int y = 0; y < frame.height; ++y) {
        const std::uint8_t* source = frame.pixels.get() + frame.stride * std::size_t(y);
        std::uint8_t* target = result.pixels.get() + result.stride * std::size_t(y);
        for (int i = 0; i < 4 * frame.width; ++i) {
            float value = 0;
            std::memcpy(&value, source + sizeof(float) * std::size_t(i), sizeof(float));
            target[i] = static_cast<std::uint8_t>(std::lround(255 * std::clamp(value, 0.0F, 1.0F)));
        }
    }
    return result;
}

} // namespace

RecordingConverter::RecordingConverter(CallLog& log) : m_log(log) {}

Frame RecordingConverter::ToDisplay(const Frame& frame) const
{
    m_log.Call("converter.ToDisplay", frame);
    const bool isFloat = frame.format == PixelFormat::RgbaFloatPremultiplied;
    return isFloat && !frame.IsNull() ? Quantised(frame) : frame;
}

} // namespace LumetraTest
