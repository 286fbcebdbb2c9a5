// SPDX-License-Identifier: GPL-2.0-or-later
#include "image/Resize.h"

#include "image/AreaAverage.h"

#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include <algorithm>

namespace LumetraHost {
namespace {

int GetMatType(const Image& image)
{
    return image.GetDepth() == Image::Depth::Bits16 ? CV_16UC4 : CV_8UC4;
}

/// The type of a packed picture.
int GetMatType(const KeptImage& image)
{
    return image.GetDepth() == Image::Depth::Bits16 ? CV_16UC3 : CV_8UC3;
}

template <class Picture>
cv::Mat WrapArea(const Picture& image, const PixelRect& area)
{
    const auto offset = static_cast<std::size_t>(area.x) * image.GetBytesPerPixel();
    auto* const first = const_cast<std::uint8_t*>(image.Row(area.y) + offset);
    return {area.height, area.width, GetMatType(image), first, image.GetStride()};
}

int ChooseInterpolation(const PixelRect& area, int width, int height, ResizeQuality quality)
{
    if (quality == ResizeQuality::Fast)
        return cv::INTER_LINEAR;
    return width <= area.width && height <= area.height ? cv::INTER_AREA : cv::INTER_CUBIC;
}

PixelRect GetWhole(const Image& image)
{
    return {0, 0, image.GetWidth(), image.GetHeight()};
}

PixelRect GetWhole(const PixelRect& area)
{
    return {0, 0, area.width, area.height};
}

void Premultiply(cv::Mat& floats, float white)
{
    for (int y = 0; y < floats.rows; ++y) {
        auto* const row = floats.ptr<float>(y);
        for (int i = 0; i < 4 * floats.cols; i += 4)
            for (int channel = 0; channel < 3; ++channel)
                row[i + channel] *= row[i + 3] / white;
    }
}

void Unpremultiply(cv::Mat& floats, float white)
{
    for (int y = 0; y < floats.rows; ++y) {
        auto* const row = floats.ptr<float>(y);
        for (int i = 0; i < 4 * floats.cols; i += 4) {
            const float factor = row[i + 3] > 0.0f ? white / row[i + 3] : 0.0f;
            for (int channel = 0; channel < 3; ++channel)
                row[i + channel] *= factor;
        }
    }
}

/// A whole number that both sides can be divided by with at least two pixels left for each of the
/// target, as large as possible; 1 when there is none.
int FindWholeFactor(const PixelRect& source, const Image& target)
{
    int factor =
        std::min(source.width / (2 * target.GetWidth()), source.height / (2 * target.GetHeight()));
    while (factor > 1 && (source.width % factor != 0 || source.height % factor != 0))
        --factor;
    return std::max(factor, 1);
}

/// Treats all pixels as opaque.
template <class Source>
void AverageAreas(const Source& source, const PixelRect& area, Image& target)
{
    const AreaAxis columns(source.GetWidth(), area.x, area.width, target.GetWidth());
    const AreaAxis rows(source.GetHeight(), area.y, area.height, target.GetHeight());
    AreaAverage(columns, rows, target.GetWidth()).RunAll(source, target);
}

/// Averages of whole pixels are made several times as quick as those of their parts.
template <class Source>
void AverageInTwoSteps(const Source& source, const PixelRect& area, Image& target)
{
    const int factor = FindWholeFactor(area, target);
    if (factor == 1)
        return AverageAreas(source, area, target);
    const PixelRect whole{0, 0, area.width / factor, area.height / factor};
    Image smaller = Image::AllocateUninitialised(whole.width, whole.height, source.GetDepth());
    AverageAreas(source, area, smaller);
    AverageAreas(smaller, whole, target);
}

void Interpolate(const Image& source, const PixelRect& area, cv::Mat& to, int interpolation)
{
    cv::resize(WrapArea(source, area), to, to.size(), 0, 0, interpolation);
}

void Interpolate(const KeptImage& source, const PixelRect& area, cv::Mat& to, int interpolation)
{
    cv::Mat colours;
    cv::resize(WrapArea(source, area), colours, to.size(), 0, 0, interpolation);
    cv::cvtColor(colours, to, cv::COLOR_RGB2RGBA);
}

template <class Source>
void ResizeOpaque(const Source& source, const PixelRect& area, Image& target, ResizeQuality quality)
{
    const int interpolation =
        ChooseInterpolation(area, target.GetWidth(), target.GetHeight(), quality);
    if (interpolation != cv::INTER_AREA) {
        cv::Mat to = WrapArea(target, GetWhole(target));
        Interpolate(source, area, to, interpolation);
    } else if (quality == ResizeQuality::Screen)
        AverageInTwoSteps(source, area, target);
    else
        AverageAreas(source, area, target);
}

void ResizeTransparent(const cv::Mat& source, cv::Mat& target, int interpolation)
{
    const float white = source.depth() == CV_16U ? 65535.0f : 255.0f;
    cv::Mat floats;
    source.convertTo(floats, CV_32F);
    Premultiply(floats, white);
    cv::Mat resized;
    cv::resize(floats, resized, target.size(), 0, 0, interpolation);
    Unpremultiply(resized, white);
    resized.convertTo(target, target.depth());
}

} // namespace

Image Resize(const Image& source, const PixelRect& area, int width, int height,
             ResizeQuality quality)
{
    Image result =
        Image::AllocateUninitialised(width, height, source.GetDepth(), source.GetSpace());
    const cv::Mat from = WrapArea(source, area);
    cv::Mat to = WrapArea(result, GetWhole(result));
    if (from.size() == to.size()) {
        from.copyTo(to);
        return result;
    }
    // The result tells whether there is transparency: it is small, and the source need not be read
    // twice.
    ResizeOpaque(source, area, result, quality);
    if (!result.IsOpaque())
        ResizeTransparent(from, to, ChooseInterpolation(area, width, height, quality));
    return result;
}

Image Resize(const KeptImage& source, const PixelRect& area, int width, int height,
             ResizeQuality quality)
{
    if (!source.IsPacked())
        return Resize(source.GetImage(), area, width, height, quality);
    if (area.width == width && area.height == height)
        return source.Cut(area);
    // The library's cubic interpolation rounds three channels in another way than four.
    if (ChooseInterpolation(area, width, height, quality) == cv::INTER_CUBIC)
        return Resize(source.Cut(area), GetWhole(area), width, height, quality);
    Image result =
        Image::AllocateUninitialised(width, height, source.GetDepth(), source.GetSpace());
    ResizeOpaque(source, area, result, quality);
    return result;
}

} // namespace LumetraHost
