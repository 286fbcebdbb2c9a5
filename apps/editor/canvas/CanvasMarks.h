// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <Qt>

class QPainter;
class QRect;

namespace LumetraEditor {

/// Paints what the canvas shows over photos, which can be seen on any picture.
struct CanvasMarks
{
    /// The line of the split view at `x`, from top to bottom, with its handle in the middle.
    static void DrawSplitLine(QPainter& painter, double x, int height);
    /// A word in a box at the upper edge of `place`, at its left or right side.
    static void DrawTag(QPainter& painter, const QString& text, const QRect& place,
                        Qt::AlignmentFlag side);
};

} // namespace LumetraEditor
