// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/Image.h"

#include <cstdint>

namespace LumetraHost {

/// The rows of a picture of which a buffer holds all, or the latest: then a row takes the place of
/// the one `buffer height` above it. Refers to the buffer, which its owner keeps.
class RowWindow
{
public:
    explicit RowWindow(Image& buffer) : m_buffer(&buffer) {}

    std::uint8_t* Row(int y) const { return m_buffer->Row(y % m_buffer->GetHeight()); }
    Image::Depth GetDepth() const { return m_buffer->GetDepth(); }
    int GetWidth() const { return m_buffer->GetWidth(); }
    /// The rows of the buffer.
    int GetRows() const { return m_buffer->GetHeight(); }

private:
    Image* m_buffer;
};

} // namespace LumetraHost
