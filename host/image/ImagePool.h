// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/Image.h"

#include <cstddef>
#include <vector>

namespace LumetraHost {

/// Remembers pictures that were handed out, to use their memory again once everybody else has
/// dropped them: the system need not clear fresh pages for every frame. One thread only; the
/// others may drop their copies on any thread.
class ImagePool
{
public:
    /// The most pictures that are remembered.
    explicit ImagePool(std::size_t capacity);

    /// A picture of that form which nobody holds any more, its pixels being undefined; else null.
    Image Take(int width, int height, Image::Depth depth);
    /// Remembers a picture; forgets the oldest beyond the capacity. Null pictures and those already
    /// remembered are ignored.
    void Remember(const Image& picture);
    void Clear() { m_pictures.clear(); }

private:
    std::size_t m_capacity;
    std::vector<Image> m_pictures; ///< oldest first
};

} // namespace LumetraHost
