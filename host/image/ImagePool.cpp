// SPDX-License-Identifier: GPL-2.0-or-later
#include "image/ImagePool.h"

#include <algorithm>
#include <atomic>
#include <utility>

namespace LumetraHost {

ImagePool::ImagePool(std::size_t capacity) : m_capacity(capacity) {}

Image ImagePool::Take(int width, int height, Image::Depth depth)
{
    const auto found =
        std::find_if(m_pictures.begin(), m_pictures.end(), [&](const Image& picture) {
            return picture.GetWidth() == width && picture.GetHeight() == height &&
                   picture.GetDepth() == depth && picture.IsSoleOwner();
        });
    if (found == m_pictures.end())
        return {};
    // The count of owners orders nothing: reads by the last of them must be over before we write.
    std::atomic_thread_fence(std::memory_order_acquire);
    Image taken = std::move(*found);
    m_pictures.erase(found);
    return taken;
}

void ImagePool::Remember(const Image& picture)
{
    const auto isSame = [&](const Image& other) { return other.SharesPixelsWith(picture); };
    if (picture.IsNull() || std::any_of(m_pictures.begin(), m_pictures.end(), isSame))
        return;
    m_pictures.push_back(picture);
    if (m_pictures.size() > m_capacity)
        m_pictures.erase(m_pictures.begin());
}

} // namespace LumetraHost
