// SPDX-License-Identifier: GPL-2.0-or-later
#include "canvas/ClippingMarks.h"

#include <algorithm>

namespace LumetraEditor {
namespace {

using LumetraHost::Image;

constexpr int Colours = 3; // channels before alpha
constexpr int LargestValue = 255;

/// Marks one row; returns whether there is a mark in it.
template <class Channel>
bool MarkRow(const Channel* pixel, QRgb* marks, int width, QRgb highlights, QRgb shadows)
{
    constexpr int shift = 8 * (sizeof(Channel) - 1);
    bool isAny = false;
    for (int x = 0; x < width; ++x, pixel += Image::Channels) {
        const auto [lowest, highest] = std::minmax({pixel[0], pixel[1], pixel[2]});
        const bool isSeen = pixel[Colours] != 0;
        const bool isHigh = isSeen && (highest >> shift) == LargestValue;
        const bool isLow = isSeen && (lowest >> shift) == 0;
        marks[x] = isHigh ? highlights : isLow ? shadows : 0;
        isAny = isAny || isHigh || isLow;
    }
    return isAny;
}

} // namespace

const QColor ClippingMarks::Highlights(235, 50, 45);
const QColor ClippingMarks::Shadows(50, 105, 235);

QImage ClippingMarks::Draw(const Image& picture)
{
    if (picture.IsNull())
        return {};
    const int width = picture.GetWidth();
    QImage marks(width, picture.GetHeight(), QImage::Format_ARGB32_Premultiplied);
    bool isAny = false;
    for (int y = 0; y < picture.GetHeight(); ++y) {
        auto* const row = reinterpret_cast<QRgb*>(marks.scanLine(y));
        const bool isInRow =
            picture.GetDepth() == Image::Depth::Bits16
                ? MarkRow(picture.Row16(y), row, width, Highlights.rgb(), Shadows.rgb())
                : MarkRow(picture.Row(y), row, width, Highlights.rgb(), Shadows.rgb());
        isAny = isAny || isInRow;
    }
    return isAny ? marks : QImage();
}

} // namespace LumetraEditor
