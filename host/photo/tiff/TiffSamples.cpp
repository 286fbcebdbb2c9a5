// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/tiff/TiffSamples.h"

#include <algorithm>
#include <limits>

namespace LumetraHost {
namespace {

constexpr int ColorChannels = 3;

template <class Value>
Value* TypedRow(Image& image, int y)
{
    return reinterpret_cast<Value*>(image.Row(y));
}

template <class Value>
void ScatterRow(const TiffSamples& samples, const Value* row, int plane, Value* target, int count)
{
    const bool planes = samples.perPixel == 1 && plane > 0;
    for (int channel = 0; channel < Image::Channels; ++channel) {
        const int sample = samples.source[static_cast<std::size_t>(channel)];
        const bool inThisRow = planes ? sample == plane : sample >= 0 && sample < samples.perPixel;
        if (!inThisRow)
            continue;
        const Value* source = planes ? row : row + sample;
        for (int i = 0; i < count; ++i)
            target[Image::Channels * i + channel] = source[samples.perPixel * i];
    }
}

template <class Value>
void InvertColors(Image& image)
{
    for (int y = 0; y < image.GetHeight(); ++y) {
        Value* const row = TypedRow<Value>(image, y);
        for (int i = 0; i < Image::Channels * image.GetWidth(); ++i) {
            if (i % Image::Channels != ColorChannels)
                row[i] = static_cast<Value>(std::numeric_limits<Value>::max() - row[i]);
        }
    }
}

template <class Value>
void FillAlpha(Image& image)
{
    for (int y = 0; y < image.GetHeight(); ++y) {
        Value* const row = TypedRow<Value>(image, y);
        for (int x = 0; x < image.GetWidth(); ++x)
            row[Image::Channels * x + ColorChannels] = std::numeric_limits<Value>::max();
    }
}

template <class Value>
void DivideByAlpha(Image& image)
{
    constexpr std::uint64_t white = std::numeric_limits<Value>::max();
    for (int y = 0; y < image.GetHeight(); ++y) {
        Value* pixel = TypedRow<Value>(image, y);
        for (int x = 0; x < image.GetWidth(); ++x, pixel += Image::Channels) {
            const std::uint64_t alpha = pixel[ColorChannels];
            if (alpha == white)
                continue;
            for (int channel = 0; channel < ColorChannels; ++channel) {
                const std::uint64_t color =
                    alpha == 0 ? 0 : (pixel[channel] * white + alpha / 2) / alpha;
                pixel[channel] = static_cast<Value>(std::min(color, white));
            }
        }
    }
}

template <class Value>
void FinishTyped(const TiffSamples& samples, Image& target)
{
    if (samples.source[ColorChannels] == TiffSamples::None)
        FillAlpha<Value>(target);
    if (samples.invert)
        InvertColors<Value>(target);
    if (samples.premultiplied)
        DivideByAlpha<Value>(target);
}

} // namespace

void TiffSamples::Scatter(const std::uint8_t* row, int plane, Image& target, int x, int y,
                          int count) const
{
    if (bytes == 2)
        ScatterRow(*this, reinterpret_cast<const std::uint16_t*>(row), plane,
                   target.Row16(y) + Image::Channels * x, count);
    else
        ScatterRow(*this, row, plane, target.Row(y) + Image::Channels * x, count);
}

void TiffSamples::Finish(Image& target) const
{
    if (bytes == 2)
        FinishTyped<std::uint16_t>(*this, target);
    else
        FinishTyped<std::uint8_t>(*this, target);
}

void TiffSamples::Unpremultiply(Image& image)
{
    if (image.GetDepth() == Image::Depth::Bits16)
        DivideByAlpha<std::uint16_t>(image);
    else
        DivideByAlpha<std::uint8_t>(image);
}

} // namespace LumetraHost
