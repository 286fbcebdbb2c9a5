// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/Image.h"
#include "image/KeptImage.h"
#include "image/Resize.h"

#include <mutex>

namespace LumetraHost {

/// A large photo that several threads show at a fraction of its size. Whoever asks first makes a
/// picture of some million pixels, while others wait, and from then on all shrink that one: the
/// photo is read once, not by each of them. For any number of threads at once.
///
/// Photos with transparency and those that are not much larger than that picture have none, and
/// neither have sizes for which it is too small.
class Overview
{
public:
    /// Enough for a window that fills a screen of 2 megapixels.
    static constexpr double LeastPixels = 5e6;

    /// `leastPixels`: that the smaller picture has at least.
    explicit Overview(const KeptImage& photo, double leastPixels = LeastPixels);
    Overview(const Overview&) = delete;
    Overview& operator=(const Overview&) = delete;

    const KeptImage& GetPhoto() const { return m_photo; }
    /// The part of the photo (inside it, at least 1 x 1) as a picture of width x height, see
    /// LumetraHost::Resize(). From the smaller picture it is an area average whatever the quality,
    /// and lies where it would without.
    Image Resize(const PixelRect& area, int width, int height, ResizeQuality quality);

private:
    bool IsEnough(const PixelRect& area, int width, int height) const;
    const KeptImage& GetReduced();
    Image Shrink(const KeptImage& reduced, const PixelRect& area, int width, int height) const;

    const KeptImage m_photo;
    const int m_factor; ///< pixels of the photo to one of the smaller picture, along each side
    std::once_flag m_isMade;
    KeptImage m_reduced; ///< packed; null: not made, or of no use
};

} // namespace LumetraHost
