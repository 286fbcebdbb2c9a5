// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QApplication>
#include <QCursor>
#include <QMouseEvent>
#include <QWidget>

namespace LumetraTest {

/// Where the line of the split view stands, 0 to 1 of the canvas' width: where the pointer says
/// that it can be dragged. -1 where no line is shown.
inline double FindSplitLine(QWidget& canvas)
{
    int first = -1, last = -1;
    for (int x = 0; x < canvas.width(); ++x) {
        const QPoint place(x, canvas.height() / 2);
        QMouseEvent move(QEvent::MouseMove, place, canvas.mapToGlobal(place), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&canvas, &move);
        if (canvas.cursor().shape() != Qt::SplitHCursor)
            continue;
        first = first < 0 ? x : first;
        last = x;
    }
    return first < 0 ? -1 : (first + last) / 2.0 / canvas.width();
}

} // namespace LumetraTest
