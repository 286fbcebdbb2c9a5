// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/PixelMemory.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>

namespace LumetraHost {

class RgbSpace;

/// A picture in memory: interleaved RGBA, straight (not premultiplied) alpha, sRGB or in the RGB
/// space that it names. Copies share the pixels; whoever writes into a picture owns the only copy
/// of it, and pictures that were handed on are not written again. Metadata are not part of it.
class Image
{
public:
    /// Bits of an unsigned integer per channel, in the machine's byte order.
    enum class Depth
    {
        Bits8,
        Bits16
    };

    static constexpr int Channels = 4;
    /// Every row begins at a multiple of this many bytes.
    static constexpr std::size_t RowAlignment = PixelMemory::RowAlignment;
    /// The largest width and height.
    static constexpr int MaximumSide = 1 << 20;

    /// The null picture: no pixels, 0 x 0.
    Image() = default;

    /// A picture of transparent black. Zorvik::Exception for a side below 1 or above MaximumSide;
    /// std::bad_alloc when the memory is not there.
    static Image Allocate(int width, int height, Depth depth);
    /// Leaves the pixels undefined, for callers that write all of them; in `space`.
    static Image AllocateUninitialised(int width, int height, Depth depth,
                                       std::shared_ptr<const RgbSpace> space = nullptr);

    /// Zorvik::Exception for a side below 1 or above MaximumSide.
    static void CheckSize(int width, int height);

    bool IsNull() const { return !m_pixels; }
    int GetWidth() const { return m_width; }
    int GetHeight() const { return m_height; }
    Depth GetDepth() const { return m_depth; }
    /// The space of the pixels; null: sRGB.
    const std::shared_ptr<const RgbSpace>& GetSpace() const { return m_space; }
    /// Says what the pixels stand for and leaves them as they are. Copies that share the pixels
    /// keep their own space.
    void SetSpace(std::shared_ptr<const RgbSpace> space) { m_space = std::move(space); }
    /// Bytes from one row to the next.
    std::size_t GetStride() const { return m_stride; }
    std::size_t GetBytesPerPixel() const { return Channels * GetBytesPerChannel(); }
    std::size_t GetBytesPerChannel() const { return m_depth == Depth::Bits16 ? 2 : 1; }
    /// Bytes of all rows, padding included.
    std::size_t GetByteCount() const { return m_stride * static_cast<std::size_t>(m_height); }

    /// The first byte of row `y`, 0 <= y < height (not checked).
    const std::uint8_t* Row(int y) const { return m_pixels.get() + Offset(y); }
    std::uint8_t* Row(int y) { return m_pixels.get() + Offset(y); }
    /// Row `y` as 16-bit values; only for Depth::Bits16.
    const std::uint16_t* Row16(int y) const
    {
        return reinterpret_cast<const std::uint16_t*>(Row(y));
    }
    std::uint16_t* Row16(int y) { return reinterpret_cast<std::uint16_t*>(Row(y)); }

    /// True when every alpha is full. Looks at all pixels, on the shared pool: not for its steps.
    bool IsOpaque() const;

    /// A copy with pixels of its own.
    Image Clone() const;

    /// True when both share the same pixels, or both are null.
    bool SharesPixelsWith(const Image& other) const { return m_pixels == other.m_pixels; }

    /// The memory of the pixels, which the picture goes on sharing.
    std::shared_ptr<std::uint8_t> SharePixels() { return m_pixels; }
    /// True when no other picture shares the pixels.
    bool IsSoleOwner() const { return m_pixels.use_count() == 1; }

private:
    std::size_t Offset(int y) const { return m_stride * static_cast<std::size_t>(y); }

    int m_width = 0;
    int m_height = 0;
    Depth m_depth = Depth::Bits8;
    std::size_t m_stride = 0;
    std::shared_ptr<std::uint8_t> m_pixels;
    std::shared_ptr<const RgbSpace> m_space;
};

/// A picture of the size, depth and space of `form` with undefined pixels: `recycled` itself
/// where it has that form and no other owner, which spares the system from clearing fresh pages.
Image AllocateLike(const Image& form, Image recycled);

/// True when size, depth and every channel are the same; padding and space are not looked at.
bool HaveSamePixels(const Image& first, const Image& second);

} // namespace LumetraHost
