// SPDX-License-Identifier: MIT
#include "Zorvik/Proc/Frame.h"

#include "Zorvik/Exception.h"

#include <boost/current_function.hpp>

#include <limits>
#include <string>

namespace Zorvik::Proc {
namespace {

constexpr std::size_t RowAlignment = 16;
constexpr std::size_t LargestFrame = std::numeric_limits<std::int32_t>::max();

std::size_t BytesPerPixel(PixelFormat format)
{
    return format == PixelFormat::RgbaFloatPremultiplied ? 4 * sizeof(float) : 4;
}

} // namespace

Frame Frame::Allocate(int width, int height, PixelFormat format)
{
    const auto size = std::to_string(width) + " x " + std::to_string(height);
    if (width < 1 || height < 1)
        throw Exception("frame of " + size + " pixels: expected at least 1 x 1",
                        BOOST_CURRENT_FUNCTION, "Zorvik/Proc/Frame", __LINE__);

    const std::size_t row = static_cast<std::size_t>(width) * BytesPerPixel(format);
    const std::size_t stride = (row + RowAlignment - 1) / RowAlignment * RowAlignment;
    if (stride > LargestFrame / static_cast<std::size_t>(height))
        throw Exception("frame of " + size + " pixels: expected at most 2147483647 bytes",
                        BOOST_CURRENT_FUNCTION, "Zorvik/Proc/Frame", __LINE__);

    Frame frame;
    frame.width = width;
    frame.height = height;
    frame.stride = stride;
    frame.format = format;
    frame.pixels.reset(new std::uint8_t[stride * static_cast<std::size_t>(height)]());
    return frame;
}

bool Frame::IsNull() const
{
    return !pixels;
}

} // namespace Zorvik::Proc
