// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cstdint>
#include <string>

namespace LumetraHost {

struct PhotoHead;

/// How large a photo may be, checked on what the file's header says before memory is taken.
class PhotoLimits
{
public:
    static constexpr std::uint64_t LargestSide = 65'500;        ///< pixels
    static constexpr std::uint64_t LargestArea = 500'000'000;   ///< pixels
    static constexpr std::uint64_t LargestFile = 0x1'0000'0000; ///< bytes
    /// Bytes that a file may have beside those of its pixels: metadata, films, other pictures.
    static constexpr std::uint64_t LargestExtra = 0x1000'0000;
    static constexpr std::uint64_t LargestPixel = 16; ///< bytes of an encoded pixel

    /// Follows the name of a photo whose work ran out of memory.
    static constexpr char OutOfMemory[] = "there is not enough memory for this photo";

    /// Zorvik::Exception naming the file and both sizes when the picture is empty or too large.
    static void Check(const std::string& name, std::uint64_t width, std::uint64_t height);

    /// Zorvik::Exception when a file of `size` bytes is too long, for any photo or for the picture
    /// that its head announces. Raw files and TIFF files may hold any number of pictures.
    static void CheckFile(const std::string& name, const PhotoHead& head, std::uint64_t size);
};

} // namespace LumetraHost
