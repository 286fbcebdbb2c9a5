// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QImage>
#include <QRect>

namespace LumetraEditor {

/// A rendered picture of a part of the photo.
struct CanvasFrame
{
    QImage image; ///< RGB32, or premultiplied ARGB32
    QRect part;   ///< in photo pixels
};

} // namespace LumetraEditor
