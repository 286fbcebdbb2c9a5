// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QColor>

namespace LumetraAdjust {

/// The pure colour of a hue in degrees, mixed with white by what `saturation`, from 0 to 1, leaves
/// of it.
inline QColor ColourOfHue(double degrees, double saturation = 1)
{
    const double turn = degrees / 360 - static_cast<int>(degrees / 360);
    return QColor::fromHsvF(turn < 0 ? turn + 1 : turn, saturation, 1);
}

} // namespace LumetraAdjust
