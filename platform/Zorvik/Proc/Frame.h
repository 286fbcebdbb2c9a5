// SPDX-License-Identifier: MIT
#pragma once

#include "ZorvikPlatformExport.h"

#include <cstddef>
#include <cstdint>
#include <memory>

namespace Zorvik::Proc {

enum class PixelFormat
{
    Rgba8Premultiplied,
    RgbaFloatPremultiplied
};

/// What a preview is rendered for.
struct FrameTarget
{
    int width = 0;  ///< pixels
    int height = 0; ///< pixels
    double pixelAspect = 1.0;
};

/// A rendered picture. Copies share the buffer, which is not written again once handed out.
/// A default-made frame is null.
struct ZORVIKPLATFORM_EXPORT Frame
{
    /// A zeroed frame whose rows begin at multiples of 16 bytes. Exception for a width or height
    /// below 1, and for a frame of more than 2^31 - 1 bytes.
    static Frame Allocate(int width, int height, PixelFormat format);

    bool IsNull() const;

    int width = 0;
    int height = 0;
    std::size_t stride = 0; ///< bytes per row, a multiple of 16
    PixelFormat format = PixelFormat::Rgba8Premultiplied;
    double pixelAspect = 1.0; ///< width / height of a pixel
    std::shared_ptr<std::uint8_t[]> pixels;
};

} // namespace Zorvik::Proc
