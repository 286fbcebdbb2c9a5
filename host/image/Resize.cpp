// SPDX-License-Identifier: GPL-2.0-or-later
#include "image/Resize.h"

#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <limits>

namespace LumetraHost {
namespace {

int GetMatType(const Image& image)
{
    return image.GetDepth() == Image::Depth::Bits16 ? CV_16UC4 : CV_8UC4;
}

cv::Mat WrapArea(const Image& image, const PixelRect& area)
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

template <class Channel>
bool IsOpaqueRow(const Channel* row, int pixels)
{
    for (int i = 0; i < pixels; ++i)
        if (row[4 * i + 3] != std::numeric_limits<Channel>::max())
            return false;
    return true;
}

bool IsOpaque(const cv::Mat& pixels)
{
    for (int y = 0; y < pixels.rows; ++y) {
        const bool isOpaque = pixels.depth() == CV_16U
                                  ? IsOpaqueRow(pixels.ptr<std::uint16_t>(y), pixels.cols)
                                  : IsOpaqueRow(pixels.ptr<std::uint8_t>(y), pixels.cols);
        if (!isOpaque)
            return false;
    }
    return true;
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
int FindWholeFactor(const cv::Size& source, const cv::Size& target)
{
    int factor = std::min(source.width / (2 * target.width), source.height / (2 * target.height));
    while (factor > 1 && (source.width % factor != 0 || source.height % factor != 0))
        --factor;
    return std::max(factor, 1);
}

/// Averages whole pixels first: they take a fraction of the time that parts of pixels take.
void ResizeInTwoSteps(const cv::Mat& source, cv::Mat& target, int interpolation)
{
    const int factor = FindWholeFactor(source.size(), target.size());
    cv::Mat smaller = source;
    if (factor > 1)
        cv::resize(source, smaller, source.size() / factor, 0, 0, cv::INTER_AREA);
    cv::resize(smaller, target, target.size(), 0, 0, interpolation);
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
    cv::Mat to = WrapArea(result, {0, 0, width, height});
    const int interpolation = ChooseInterpolation(area, width, height, quality);
    if (from.size() == to.size())
        from.copyTo(to);
    else if (!IsOpaque(from))
        ResizeTransparent(from, to, interpolation);
    else if (quality == ResizeQuality::Screen)
        ResizeInTwoSteps(from, to, interpolation);
    else
        cv::resize(from, to, to.size(), 0, 0, interpolation);
    return result;
}

} // namespace LumetraHost
