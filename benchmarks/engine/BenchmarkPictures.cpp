// SPDX-License-Identifier: GPL-2.0-or-later
#include "BenchmarkPictures.h"

#include "common/Pictures.h"

#include <algorithm>
#include <cmath>

namespace LumetraBench {
namespace {

using LumetraHost::Image;

double photoMegapixels = 12;

Image MakeSized(Image::Depth depth)
{
    const int side = std::max(4, int(std::lround(std::sqrt(photoMegapixels * 1e6 / 12))));
    return MakePhoto(4 * side, 3 * side, depth, InnerTones);
}

} // namespace

void SetMegapixels(double megapixels)
{
    photoMegapixels = megapixels;
}

const Image& GetPhoto(Image::Depth depth)
{
    static const Image photo8 = MakeSized(Image::Depth::Bits8);
    static const Image photo16 = MakeSized(Image::Depth::Bits16);
    return depth == Image::Depth::Bits16 ? photo16 : photo8;
}

double GetPixels(double percentOfDiagonal)
{
    const Image& photo = GetPhoto(Image::Depth::Bits8);
    return percentOfDiagonal / 100 * std::hypot(photo.GetWidth(), photo.GetHeight());
}

} // namespace LumetraBench
