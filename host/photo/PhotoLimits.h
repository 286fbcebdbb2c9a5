// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cstdint>
#include <string>

namespace LumetraHost {

/// How large a photo may be, checked on what the file's header says before memory is taken.
class PhotoLimits
{
public:
    static constexpr std::uint64_t LargestSide = 65'500;        ///< pixels
    static constexpr std::uint64_t LargestArea = 500'000'000;   ///< pixels
    static constexpr std::uint64_t LargestFile = 0x1'0000'0000; ///< bytes

    /// Zorvik::Exception naming the file and both sizes when the picture is empty or too large.
    static void Check(const std::string& name, std::uint64_t width, std::uint64_t height);
};

} // namespace LumetraHost
