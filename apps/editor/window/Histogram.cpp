// SPDX-License-Identifier: GPL-2.0-or-later
#include "window/Histogram.h"

#include <QImage>

#include <algorithm>

namespace LumetraEditor {
namespace {

constexpr int SamplesPerSide = 256;

} // namespace

Histogram Histogram::Of(const QImage& image)
{
    Histogram histogram;
    if (image.format() != QImage::Format_RGB32 &&
        image.format() != QImage::Format_ARGB32_Premultiplied)
        return histogram;
    const int stepX = std::max(1, image.width() / SamplesPerSide);
    const int stepY = std::max(1, image.height() / SamplesPerSide);
    for (int y = stepY / 2; y < image.height(); y += stepY) {
        const auto* const row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = stepX / 2; x < image.width(); x += stepX) {
            ++histogram.channels[0][static_cast<std::size_t>(qRed(row[x]))];
            ++histogram.channels[1][static_cast<std::size_t>(qGreen(row[x]))];
            ++histogram.channels[2][static_cast<std::size_t>(qBlue(row[x]))];
        }
    }
    return histogram;
}

std::uint32_t Histogram::GetTallestInner() const
{
    std::uint32_t tallest = 0;
    std::uint32_t total = 0;
    for (const Counts& counts : channels) {
        tallest = std::max(tallest, *std::max_element(counts.begin() + 1, counts.end() - 1));
        total += counts.front() + counts.back();
    }
    // A picture of pure black and white has nothing in between.
    return tallest == 0 && total > 0 ? total : tallest;
}

} // namespace LumetraEditor
