// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/Image.h"
#include "image/PixelRect.h"

#include <cstddef>
#include <cstdint>
#include <memory>

namespace LumetraHost {

/// The pixels of a photo for as long as it is open. An opaque photo can be packed: it then has
/// three channels in memory, which takes a quarter less than an Image. Nothing draws on it; whoever
/// wants to draw takes a part or a smaller picture of it, which is an Image. Copies share the
/// pixels, and pixels that were handed on are not written again.
class KeptImage
{
public:
    /// A packed picture has no alpha.
    static constexpr int Channels = 3;

    /// The null picture: no pixels, 0 x 0.
    KeptImage() = default;
    /// Shares the pixels of a picture and leaves them as they are.
    KeptImage(const Image& image); // NOLINT(google-explicit-constructor): an Image is one too

    /// A packed picture of undefined colours, for callers that store all of them; in `space`. Fails
    /// as Image::AllocateUninitialised().
    static KeptImage AllocatePacked(int width, int height, Image::Depth depth,
                                    std::shared_ptr<const RgbSpace> space = nullptr);
    /// Packs an opaque picture, in its own memory where nobody else shares it. A picture with
    /// transparency is kept as it is.
    static KeptImage Pack(Image image);

    bool IsNull() const { return m_width == 0; }
    bool IsPacked() const { return m_packed != nullptr; }
    int GetWidth() const { return m_width; }
    int GetHeight() const { return m_height; }
    Image::Depth GetDepth() const { return m_depth; }
    /// The space of the pixels; null: sRGB.
    const std::shared_ptr<const RgbSpace>& GetSpace() const { return m_space; }
    std::size_t GetBytesPerPixel() const;
    /// Bytes of all rows, padding included.
    std::size_t GetByteCount() const { return m_stride * static_cast<std::size_t>(m_height); }
    /// True when every alpha is full, which is known of a packed picture; see Image::IsOpaque().
    bool IsOpaque() const { return IsPacked() || m_image.IsOpaque(); }
    /// True when both share the same pixels, or both are null.
    bool SharesPixelsWith(const KeptImage& other) const;

    /// The picture that is not packed; null otherwise.
    const Image& GetImage() const { return m_image; }
    /// Row `y` of a packed picture: red, green and blue of each pixel, and at least one value more
    /// that belongs to none.
    const std::uint8_t* Row(int y) const { return m_packed.get() + Offset(y); }
    /// Bytes from one row to the next.
    std::size_t GetStride() const { return m_stride; }

    /// Stores an opaque part with its upper left pixel at (x, y) of a packed picture that nobody
    /// else shares. It lies inside and has the picture's depth (not checked). Several threads may
    /// store parts that do not overlap.
    void Store(const Image& part, int x, int y);

    /// Copies `count` rows from row `y` on into `target` from its row `first` on, at the target's
    /// depth, see LumetraHost::CopyRows().
    void CopyRows(int y, int count, Image& target, int first) const;
    /// A part of the picture, inside it, with pixels of its own.
    Image Cut(const PixelRect& part) const;
    /// The whole picture. Shares the pixels of one that is not packed.
    Image ToImage() const;

private:
    KeptImage(const Image& form, std::shared_ptr<std::uint8_t> packed);

    std::size_t Offset(int y) const { return m_stride * static_cast<std::size_t>(y); }
    void TakeForm(const Image& image);
    void CopyPart(const PixelRect& part, Image& target, int first) const;

    int m_width = 0;
    int m_height = 0;
    Image::Depth m_depth = Image::Depth::Bits8;
    std::size_t m_stride = 0;
    std::shared_ptr<const RgbSpace> m_space;
    Image m_image; ///< null: packed
    std::shared_ptr<std::uint8_t> m_packed;
};

} // namespace LumetraHost
