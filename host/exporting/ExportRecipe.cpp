// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/ExportRecipe.h"

#include "photo/file/WrittenFormat.h"
#include "storage/FailWith.h"

#include <algorithm>
#include <cmath>

namespace LumetraHost {
namespace {

using Size = ExportRecipe::Size;

Size LimitSide(Size size, int longestSide)
{
    const int longest = std::max(size.width, size.height);
    if (longestSide <= 0 || longestSide >= longest)
        return size;
    const double scale = static_cast<double>(longestSide) / longest;
    const auto shrink = [scale](int side) {
        return std::max(1, static_cast<int>(std::lround(side * scale)));
    };
    return {shrink(size.width), shrink(size.height)};
}

/// Never more pixels than `mostPixels`: sides are rounded down.
Size LimitArea(Size size, int mostPixels)
{
    const auto shrink = [mostPixels](int side, int other) {
        const double length = std::sqrt(static_cast<double>(mostPixels) * side / other);
        return std::clamp(static_cast<int>(length), 1, std::min(side, mostPixels));
    };
    const Size shrunk{shrink(size.width, size.height), shrink(size.height, size.width)};
    // A strip that has become a pixel thin has the other side left.
    return {std::min(shrunk.width, mostPixels / shrunk.height),
            std::min(shrunk.height, mostPixels / shrunk.width)};
}

} // namespace

Image::Depth ExportRecipe::GetDepth(Image::Depth photoDepth) const
{
    return GetWrittenFormat(format).holds16Bits ? depth.value_or(photoDepth) : Image::Depth::Bits8;
}

ExportRecipe::Size ExportRecipe::GetSize(int width, int height) const
{
    const Size limited = LimitSide({width, height}, longestSide);
    const bool fits =
        mostPixels <= 0 || static_cast<long long>(limited.width) * limited.height <= mostPixels;
    // Both limits keep the proportions of the photo itself, so that it is rounded once.
    return fits ? limited : LimitArea({width, height}, mostPixels);
}

bool ExportRecipe::HasRecords() const
{
    return metadata == KeptMetadata::All || metadata == KeptMetadata::NoGps;
}

void ExportRecipe::Check(const std::string& name) const
{
    const WrittenFormat& written = GetWrittenFormat(format);
    if (!written.holds16Bits && depth == Image::Depth::Bits16)
        FailWith(name + ": expected 8 bits for a " + written.name + " file, found 16");
    if (longestSide < 0 || longestSide > LargestSide)
        FailWith(name + ": expected a longest side of at most " + std::to_string(LargestSide) +
                 " pixels, found " + std::to_string(longestSide));
    if (mostPixels < 0 || mostPixels > LargestArea)
        FailWith(name + ": expected at most " + std::to_string(LargestArea) + " pixels, found " +
                 std::to_string(mostPixels));
}

} // namespace LumetraHost
