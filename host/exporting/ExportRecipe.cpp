// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/ExportRecipe.h"

#include "storage/FailWith.h"

#include <algorithm>
#include <cmath>

namespace LumetraHost {
namespace {

} // namespace

Image::Depth ExportRecipe::GetDepth(Image::Depth photoDepth) const
{
    return format == PhotoFormat::Jpeg ? Image::Depth::Bits8 : depth.value_or(photoDepth);
}

ExportRecipe::Size ExportRecipe::GetSize(int width, int height) const
{
    const int longest = std::max(width, height);
    if (longestSide <= 0 || longestSide >= longest)
        return {width, height};
    const double scale = static_cast<double>(longestSide) / longest;
    const auto shrink = [scale](int side) {
        return std::max(1, static_cast<int>(std::lround(side * scale)));
    };
    return {shrink(width), shrink(height)};
}

void ExportRecipe::Check(const std::string& name) const
{
    if (format == PhotoFormat::Jpeg && depth == Image::Depth::Bits16)
        FailWith(name + ": expected 8 bits for a JPEG file, found 16");
    if (longestSide < 0 || longestSide > LargestSide)
        FailWith(name + ": expected a longest side of at most " + std::to_string(LargestSide) +
                 " pixels, found " + std::to_string(longestSide));
}

} // namespace LumetraHost
