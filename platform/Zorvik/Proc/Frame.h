// SPDX-License-Identifier: MIT
#pragma once

#include "ZorvikPlatformExport.h"

#include <cstddef>
#include <cstdint>
#include <memory>

namespace Zorvik::Proc {

/// A frame stores red, green, blue and alpha per pixel, the colours premultiplied with alpha.
enum class PixelFormat
{
    Rgba8Premultiplied,    ///< Each channel is a byte; 255 is full.
    RgbaFloatPremultiplied ///< Each channel is a float; 1.0 is full.
};

/// Describes the size that a preview is rendered for.
struct FrameTarget
{
    int width = 0;            ///< The width in pixels, at least 1 for a valid target.
    int height = 0;           ///< The height in pixels, at least 1 for a valid target.
    double pixelAspect = 1.0; ///< The width of a pixel divided by its height, above 0.
};

/// A frame is a rendered picture. Copies share the buffer, which is not written again once handed
/// out. A default-made frame is null.
struct ZORVIKPLATFORM_EXPORT Frame
{
    /// Makes a zeroed frame whose rows begin at multiples of 16 bytes. An Exception is thrown for a
    /// width or height below 1, and for a frame of more than 2^31 - 1 bytes.
    static Frame Allocate(int width, int height, PixelFormat format);

    /// True for a frame without pixels, such as the answer of a drawer that has no photo.
    bool IsNull() const;

    int width = 0;          ///< The width in pixels.
    int height = 0;         ///< The height in pixels; the topmost row comes first.
    std::size_t stride = 0; ///< The bytes from one row to the next, a multiple of 16.
    PixelFormat format = PixelFormat::Rgba8Premultiplied;
    double pixelAspect = 1.0; ///< The width of a pixel divided by its height.
    std::shared_ptr<std::uint8_t[]> pixels;
};

} // namespace Zorvik::Proc
