// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

namespace LumetraHost {

/// The memory of a picture's pixels.
class PixelMemory
{
public:
    /// Every row begins at a multiple of this many bytes.
    static constexpr std::size_t RowAlignment = 64;

    /// Undefined bytes that begin at a multiple of RowAlignment; std::bad_alloc.
    static std::shared_ptr<std::uint8_t> Allocate(std::size_t size);
    /// The bytes from one row to the next, for rows of `size` bytes.
    static constexpr std::size_t AlignRow(std::size_t size)
    {
        return (size + RowAlignment - 1) / RowAlignment * RowAlignment;
    }
    /// Gives the memory behind the first `used` of `size` allocated bytes back to the system, as
    /// far as it makes whole pages. These bytes must not be used any more.
    static void GiveBackEnd(std::uint8_t* bytes, std::size_t size, std::size_t used);
};

} // namespace LumetraHost
