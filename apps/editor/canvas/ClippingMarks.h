// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/Image.h"

#include <QColor>
#include <QImage>

namespace LumetraEditor {

/// Marks the pixels of a drawn picture in which detail is lost because a channel has come to an end
/// of its range. 16-bit values count by their upper 8 bits, as in the histogram.
struct ClippingMarks
{
    /// The colour over pixels of which a channel is at its upper end; it wins over the other one.
    static const QColor Highlights;
    /// The colour over pixels of which a channel is at its lower end.
    static const QColor Shadows;

    /// A picture of the same size, transparent but for the marks; null when there are none, and for
    /// a null picture. Pixels that are not seen, since their alpha is 0, are not marked.
    static QImage Draw(const LumetraHost::Image& picture);
};

} // namespace LumetraEditor
