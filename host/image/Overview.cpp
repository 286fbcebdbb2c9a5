// SPDX-License-Identifier: GPL-2.0-or-later
#include "image/Overview.h"

#include "image/AreaAverage.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace LumetraHost {
namespace {

/// Pixels of the smaller picture that a shown one averages along each side, at least: with fewer of
/// them averaging twice would blur.
constexpr int LeastShrinking = 2;

int ChooseFactor(const KeptImage& photo, double leastPixels)
{
    const double pixels = double(photo.GetWidth()) * photo.GetHeight();
    const auto factor = static_cast<int>(std::sqrt(pixels / leastPixels));
    return std::min({factor, photo.GetWidth(), photo.GetHeight()});
}

} // namespace

Overview::Overview(const KeptImage& photo, double leastPixels)
    : m_photo(photo), m_factor(ChooseFactor(photo, leastPixels))
{
}

Image Overview::Resize(const PixelRect& area, int width, int height, ResizeQuality quality)
{
    if (IsEnough(area, width, height))
        if (const KeptImage& reduced = GetReduced(); !reduced.IsNull())
            return Shrink(reduced, area, width, height);
    return LumetraHost::Resize(m_photo, area, width, height, quality);
}

bool Overview::IsEnough(const PixelRect& area, int width, int height) const
{
    const double perPixel = double(LeastShrinking) * m_factor;
    return m_factor > 1 && area.width >= perPixel * width && area.height >= perPixel * height;
}

const KeptImage& Overview::GetReduced()
{
    std::call_once(m_isMade, [this] {
        const PixelRect whole{0, 0, m_photo.GetWidth(), m_photo.GetHeight()};
        Image reduced = LumetraHost::Resize(m_photo, whole, whole.width / m_factor,
                                            whole.height / m_factor, ResizeQuality::Fine);
        if (reduced.IsOpaque())
            m_reduced = KeptImage::Pack(std::move(reduced));
    });
    return m_reduced;
}

Image Overview::Shrink(const KeptImage& reduced, const PixelRect& area, int width, int height) const
{
    const double scaleX = double(reduced.GetWidth()) / m_photo.GetWidth();
    const double scaleY = double(reduced.GetHeight()) / m_photo.GetHeight();
    const AreaAxis columns(reduced.GetWidth(), area.x * scaleX, area.width * scaleX, width);
    const AreaAxis rows(reduced.GetHeight(), area.y * scaleY, area.height * scaleY, height);
    Image shrunk = Image::AllocateUninitialised(width, height, reduced.GetDepth());
    AreaAverage(columns, rows, width).RunAll(reduced, shrunk);
    return shrunk;
}

} // namespace LumetraHost
