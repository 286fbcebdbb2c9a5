// SPDX-License-Identifier: GPL-2.0-or-later
#include "common/Pictures.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

namespace LumetraBench {
namespace {

using LumetraHost::Image;

/// Converts a value of 0 to 255 to the range of the depth.
template <class Value>
Value MakeValue(double value)
{
    constexpr double most = std::numeric_limits<Value>::max();
    return static_cast<Value>(std::clamp(most / 255 * value, 0.0, most));
}

template <class Value>
void FillRow(Value* row, int width, double v, const PhotoTones& tones, std::mt19937& random)
{
    for (int x = 0; x < width; ++x) {
        const double u = double(x) / width;
        const double grain = double(random() % 17) - 8;
        Value* const pixel = row + Image::Channels * x;
        const auto& [base, span] = tones;
        pixel[0] = MakeValue<Value>(base[0] + span[0] * u * (1 - 0.5 * v) + grain);
        pixel[1] = MakeValue<Value>(base[1] + span[1] * std::sin(6 * u + 3 * v) + grain);
        pixel[2] = MakeValue<Value>(base[2] + span[2] * v * (1 - 0.6 * u) + grain);
        pixel[3] = MakeValue<Value>(255);
    }
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

Image MakePhoto(int width, int height, Image::Depth depth, const PhotoTones& tones)
{
    Image photo = Image::AllocateUninitialised(width, height, depth);
    std::mt19937 random(1);
    for (int y = 0; y < height; ++y) {
        const double v = double(y) / height;
        if (depth == Image::Depth::Bits16)
            FillRow(photo.Row16(y), width, v, tones, random);
        else
            FillRow(photo.Row(y), width, v, tones, random);
    }
    return photo;
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
