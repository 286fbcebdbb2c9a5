// SPDX-License-Identifier: GPL-2.0-or-later
#include "BenchmarkPictures.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

namespace LumetraBench {
namespace {

using LumetraHost::Image;

double photoMegapixels = 12;

/// 0 to 1 of one channel.
double GetLight(int channel, double u, double v)
{
    switch (channel) {
    case 0:
        return 0.06 + 0.8 * u * (1 - 0.5 * v);
    case 1:
        return 0.45 + 0.33 * std::sin(6 * u + 3 * v);
    case 2:
        return 0.06 + 0.8 * v * (1 - 0.6 * u);
    default:
        return 1;
    }
}

template <class Value>
void FillRow(Value* row, int width, double v, std::mt19937& random)
{
    constexpr double most = std::numeric_limits<Value>::max();
    for (int x = 0; x < width; ++x) {
        const double grain = (double(random() % 1024) - 511.5) * 0.06 / 1024;
        for (int c = 0; c < Image::Channels; ++c) {
            const double light = GetLight(c, double(x) / width, v) + (c < 3 ? grain : 0);
            row[Image::Channels * x + c] =
                static_cast<Value>(std::lround(most * std::clamp(light, 0.0, 1.0)));
        }
    }
}

Image MakePhoto(Image::Depth depth)
{
    const int side = std::max(4, int(std::lround(std::sqrt(photoMegapixels * 1e6 / 12))));
    Image photo = Image::AllocateUninitialised(4 * side, 3 * side, depth);
    std::mt19937 random(1);
    for (int y = 0; y < photo.GetHeight(); ++y) {
        const double v = double(y) / photo.GetHeight();
        if (depth == Image::Depth::Bits16)
            FillRow(photo.Row16(y), photo.GetWidth(), v, random);
        else
            FillRow(photo.Row(y), photo.GetWidth(), v, random);
    }
    return photo;
}

template <class Value>
double SumSquares(const Value* first, const Value* second, int width)
{
    double sum = 0;
    for (int i = 0; i < Image::Channels * width; ++i) {
        const double difference = i % 4 == 3 ? 0 : double(first[i]) - double(second[i]);
        sum += difference * difference;
    }
    return sum;
}

} // namespace

void SetMegapixels(double megapixels)
{
    photoMegapixels = megapixels;
}

const Image& GetPhoto(Image::Depth depth)
{
    static const Image photo8 = MakePhoto(Image::Depth::Bits8);
    static const Image photo16 = MakePhoto(Image::Depth::Bits16);
    return depth == Image::Depth::Bits16 ? photo16 : photo8;
}

double GetPixels(double percentOfDiagonal)
{
    const Image& photo = GetPhoto(Image::Depth::Bits8);
    return percentOfDiagonal / 100 * std::hypot(photo.GetWidth(), photo.GetHeight());
}

double GetPsnr(const Image& first, const Image& second)
{
    const bool isDeep = first.GetDepth() == Image::Depth::Bits16;
    double sum = 0;
    for (int y = 0; y < first.GetHeight(); ++y)
        sum += isDeep ? SumSquares(first.Row16(y), second.Row16(y), first.GetWidth())
                      : SumSquares(first.Row(y), second.Row(y), first.GetWidth());
    const double most = isDeep ? 65535 : 255;
    const double mean = sum / (3.0 * first.GetWidth() * first.GetHeight());
    return mean == 0 ? 200 : 10 * std::log10(most * most / mean);
}

} // namespace LumetraBench
