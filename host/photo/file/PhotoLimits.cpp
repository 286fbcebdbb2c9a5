// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/file/PhotoLimits.h"

#include "photo/file/PhotoHead.h"

#include "storage/FailWith.h"

#include <algorithm>

namespace LumetraHost {
namespace {

std::uint64_t GetLargestFile(const PhotoHead& head)
{
    const bool holdsSeveral = head.format == PhotoFormat::Raw || head.format == PhotoFormat::Tiff;
    if (holdsSeveral && (head.width != 0 || !head.isClassicTiff))
        return PhotoLimits::LargestFile;
    return PhotoLimits::LargestExtra +
           PhotoLimits::LargestPixel * std::min(head.width * head.height, PhotoLimits::LargestArea);
}

} // namespace

void PhotoLimits::Check(const std::string& name, std::uint64_t width, std::uint64_t height)
{
    const bool fits = width >= 1 && height >= 1 && width <= LargestSide && height <= LargestSide &&
                      width * height <= LargestArea;
    if (fits)
        return;
    FailWith(name + ": the picture is said to be " + std::to_string(width) + " x " +
             std::to_string(height) + " pixels: expected 1 to " + std::to_string(LargestSide) +
             " on each side and at most " + std::to_string(LargestArea / 1'000'000) +
             " megapixels");
}

void PhotoLimits::CheckFile(const std::string& name, const PhotoHead& head, std::uint64_t size)
{
    const std::uint64_t largest = GetLargestFile(head);
    if (size <= largest)
        return;
    const std::string picture = head.width == 0
                                    ? std::string("a picture whose size is not found")
                                    : "a picture of " + std::to_string(head.width) + " x " +
                                          std::to_string(head.height) + " pixels";
    FailWith(name + ": expected a file of at most " + std::to_string(largest) + " bytes for " +
             picture + ", found " + std::to_string(size) + " bytes");
}

} // namespace LumetraHost
