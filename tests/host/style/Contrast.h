// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QColor>
#include <QImage>

#include <algorithm>
#include <cmath>

namespace LumetraTest {

/// Relative luminance as in WCAG 2.1.
inline double Luminance(const QColor& colour)
{
    const auto linear = [](double encoded) {
        return encoded <= 0.03928 ? encoded / 12.92 : std::pow((encoded + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

/// The contrast, from 1 for equal luminance to 21 for black on white.
inline double Contrast(const QColor& a, const QColor& b)
{
    const double lighter = std::max(Luminance(a), Luminance(b));
    const double darker = std::min(Luminance(a), Luminance(b));
    return (lighter + 0.05) / (darker + 0.05);
}

/// The contrast of the most visible pixel in a part of a picture to that part's background, the
/// colour of its upper left pixel.
inline double DrawnContrast(const QImage& picture, const QRect& part)
{
    const QColor background = picture.pixelColor(part.topLeft());
    double most = 1;
    for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right(); ++x)
            most = std::max(most, Contrast(picture.pixelColor(x, y), background));
    return most;
}

} // namespace LumetraTest
