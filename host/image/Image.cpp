// SPDX-License-Identifier: GPL-2.0-or-later
#include "image/Image.h"

#include "storage/FailWith.h"
#include "threads/RowBands.h"

#include <cstring>
#include <limits>
#include <string>
#include <utility>

namespace LumetraHost {
namespace {

template <class Channel>
bool IsOpaqueRow(const Channel* row, int pixels)
{
    constexpr Channel full = std::numeric_limits<Channel>::max();
    Channel all = full;
    for (int i = 0; i < pixels; ++i)
        all &= row[Image::Channels * i + 3];
    return all == full;
}

} // namespace

Image Image::Allocate(int width, int height, Depth depth)
{
    Image image = AllocateUninitialised(width, height, depth);
    std::memset(image.m_pixels.get(), 0, image.GetByteCount());
    return image;
}

void Image::CheckSize(int width, int height)
{
    if (width < 1 || height < 1 || width > MaximumSide || height > MaximumSide)
        FailWith("picture of " + std::to_string(width) + " x " + std::to_string(height) +
                 " pixels: expected 1 to " + std::to_string(MaximumSide) + " on each side");
}

Image Image::AllocateUninitialised(int width, int height, Depth depth,
                                   std::shared_ptr<const RgbSpace> space)
{
    CheckSize(width, height);
    Image image;
    image.m_width = width;
    image.m_height = height;
    image.m_depth = depth;
    image.m_stride =
        PixelMemory::AlignRow(static_cast<std::size_t>(width) * image.GetBytesPerPixel());
    image.m_pixels = PixelMemory::Allocate(image.GetByteCount());
    image.m_space = std::move(space);
    return image;
}

bool Image::IsOpaque() const
{
    CancelToken isTransparent;
    return ForEachBand(ThreadPool::GetShared(), m_height, 0, &isTransparent, [&](int y, int end) {
        for (; y < end && !isTransparent.IsCancelled(); ++y)
            if (!(m_depth == Depth::Bits16 ? IsOpaqueRow(Row16(y), m_width)
                                           : IsOpaqueRow(Row(y), m_width)))
                isTransparent.Cancel();
    });
}

Image Image::Clone() const
{
    if (IsNull())
        return {};
    Image copy = AllocateUninitialised(m_width, m_height, m_depth, m_space);
    std::memcpy(copy.m_pixels.get(), m_pixels.get(), GetByteCount());
    return copy;
}

Image AllocateLike(const Image& form, Image recycled)
{
    const bool fits = recycled.GetWidth() == form.GetWidth() &&
                      recycled.GetHeight() == form.GetHeight() &&
                      recycled.GetDepth() == form.GetDepth();
    if (!fits || !recycled.IsSoleOwner())
        return Image::AllocateUninitialised(form.GetWidth(), form.GetHeight(), form.GetDepth(),
                                            form.GetSpace());
    recycled.SetSpace(form.GetSpace());
    return recycled;
}

bool HaveSamePixels(const Image& first, const Image& second)
{
    if (first.GetWidth() != second.GetWidth() || first.GetHeight() != second.GetHeight() ||
        first.GetDepth() != second.GetDepth())
        return false;
    const auto row = static_cast<std::size_t>(first.GetWidth()) * first.GetBytesPerPixel();
    for (int y = 0; y < first.GetHeight(); ++y)
        if (std::memcmp(first.Row(y), second.Row(y), row) != 0)
            return false;
    return true;
}

} // namespace LumetraHost
