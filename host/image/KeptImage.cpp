// SPDX-License-Identifier: GPL-2.0-or-later
#include "image/KeptImage.h"

#include "image/DepthConversion.h"
#include "image/PixelMemory.h"
#include "threads/RowBands.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <utility>

namespace LumetraHost {
namespace {

constexpr auto Packed = static_cast<std::size_t>(KeptImage::Channels);
constexpr auto Whole = static_cast<std::size_t>(Image::Channels);

std::size_t GetPackedStride(int width, std::size_t bytesPerChannel)
{
    // The value behind the last pixel lets four values be read and written for each of three.
    return PixelMemory::AlignRow((static_cast<std::size_t>(width) * Packed + 1) * bytesPerChannel);
}

/// Leaves out the alpha of `count` pixels. `to` may be `from` or lie in front of it, and nothing
/// behind its last pixel is written.
template <class Channel>
void PackRow(const Channel* from, std::size_t count, Channel* to)
{
    Channel pixel[Whole];
    for (std::size_t i = 0; i + 1 < count; ++i) {
        std::memcpy(pixel, from + Whole * i, sizeof(pixel));
        std::memcpy(to + Packed * i, pixel, sizeof(pixel));
    }
    std::memcpy(pixel, from + Whole * (count - 1), sizeof(pixel));
    std::memcpy(to + Packed * (count - 1), pixel, Packed * sizeof(Channel));
}

template <class Channel>
void UnpackRow(const Channel* from, std::size_t count, Channel* to)
{
    for (std::size_t i = 0; i < count; ++i) {
        Channel pixel[Whole];
        std::memcpy(pixel, from + Packed * i, sizeof(pixel));
        pixel[Packed] = std::numeric_limits<Channel>::max();
        std::memcpy(to + Whole * i, pixel, sizeof(pixel));
    }
}

template <class Channel>
void PackBytes(const std::uint8_t* from, int count, std::uint8_t* to)
{
    PackRow(reinterpret_cast<const Channel*>(from), static_cast<std::size_t>(count),
            reinterpret_cast<Channel*>(to));
}

template <class Channel>
void UnpackBytes(const std::uint8_t* from, int count, std::uint8_t* to)
{
    UnpackRow(reinterpret_cast<const Channel*>(from), static_cast<std::size_t>(count),
              reinterpret_cast<Channel*>(to));
}

void PackRow(const Image& source, int y, std::uint8_t* to)
{
    const auto pack = source.GetDepth() == Image::Depth::Bits16 ? PackBytes<std::uint16_t>
                                                                : PackBytes<std::uint8_t>;
    pack(source.Row(y), source.GetWidth(), to);
}

} // namespace

KeptImage::KeptImage(const Image& image) : m_image(image)
{
    TakeForm(image);
    m_stride = image.GetStride();
}

KeptImage::KeptImage(const Image& form, std::shared_ptr<std::uint8_t> packed)
    : m_packed(std::move(packed))
{
    TakeForm(form);
    m_stride = GetPackedStride(m_width, form.GetBytesPerChannel());
}

void KeptImage::TakeForm(const Image& image)
{
    m_width = image.GetWidth();
    m_height = image.GetHeight();
    m_depth = image.GetDepth();
    m_space = image.GetSpace();
}

KeptImage KeptImage::AllocatePacked(int width, int height, Image::Depth depth,
                                    std::shared_ptr<const RgbSpace> space)
{
    Image::CheckSize(width, height);
    KeptImage image;
    image.m_width = width;
    image.m_height = height;
    image.m_depth = depth;
    image.m_space = std::move(space);
    image.m_stride = GetPackedStride(width, depth == Image::Depth::Bits16 ? 2 : 1);
    image.m_packed = PixelMemory::Allocate(image.GetByteCount());
    return image;
}

KeptImage KeptImage::Pack(Image image)
{
    if (image.IsNull() || !image.IsOpaque())
        return image;
    if (!image.IsSoleOwner()) {
        KeptImage packed =
            AllocatePacked(image.GetWidth(), image.GetHeight(), image.GetDepth(), image.GetSpace());
        packed.Store(image, 0, 0);
        return packed;
    }
    // Each row ends before the next one begins, so that nothing is overwritten before it is read.
    const std::size_t stride = GetPackedStride(image.GetWidth(), image.GetBytesPerChannel());
    std::uint8_t* const bytes = image.Row(0);
    for (int y = 0; y < image.GetHeight(); ++y)
        PackRow(image, y, bytes + stride * static_cast<std::size_t>(y));
    PixelMemory::GiveBackEnd(bytes, image.GetByteCount(),
                             stride * static_cast<std::size_t>(image.GetHeight()));
    auto pixels = image.SharePixels();
    return {image, std::move(pixels)};
}

std::size_t KeptImage::GetBytesPerPixel() const
{
    return (IsPacked() ? Packed : Whole) * (m_depth == Image::Depth::Bits16 ? 2 : 1);
}

bool KeptImage::SharesPixelsWith(const KeptImage& other) const
{
    return m_packed == other.m_packed && m_image.SharesPixelsWith(other.m_image);
}

void KeptImage::Store(const Image& part, int x, int y)
{
    const std::size_t left = static_cast<std::size_t>(x) * GetBytesPerPixel();
    for (int row = 0; row < part.GetHeight(); ++row)
        PackRow(part, row, m_packed.get() + Offset(y + row) + left);
}

void KeptImage::CopyRows(int y, int count, Image& target, int first) const
{
    if (!IsPacked())
        return LumetraHost::CopyRows(m_image, y, target, first, count);
    if (target.GetDepth() == m_depth)
        return CopyPart({0, y, m_width, count}, target, first);
    LumetraHost::CopyRows(Cut({0, y, m_width, count}), 0, target, first, count);
}

Image KeptImage::Cut(const PixelRect& part) const
{
    Image target = Image::AllocateUninitialised(part.width, part.height, m_depth, m_space);
    ForEachBand(ThreadPool::GetShared(), part.height, 0, nullptr, [&](int first, int end) {
        CopyPart({part.x, part.y + first, part.width, end - first}, target, first);
    });
    return target;
}

void KeptImage::CopyPart(const PixelRect& part, Image& target, int first) const
{
    const std::size_t left = static_cast<std::size_t>(part.x) * GetBytesPerPixel();
    const std::size_t size = static_cast<std::size_t>(part.width) * GetBytesPerPixel();
    const auto unpack =
        m_depth == Image::Depth::Bits16 ? UnpackBytes<std::uint16_t> : UnpackBytes<std::uint8_t>;
    for (int y = 0; y < part.height; ++y)
        if (IsPacked())
            unpack(Row(part.y + y) + left, part.width, target.Row(first + y));
        else
            std::memcpy(target.Row(first + y), m_image.Row(part.y + y) + left, size);
}

Image KeptImage::ToImage() const
{
    return IsPacked() ? Cut({0, 0, m_width, m_height}) : m_image;
}

} // namespace LumetraHost
