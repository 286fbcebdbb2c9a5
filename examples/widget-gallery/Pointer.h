// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QApplication>
#include <QHoverEvent>
#include <QMouseEvent>
#include <QWidget>

namespace LumetraGallery {

/// Makes a widget draw itself as under the pointer, without a pointer.
inline void HoverAt(QWidget& widget, const QPoint& position)
{
    widget.setAttribute(Qt::WA_UnderMouse);
    QHoverEvent enter(QEvent::HoverEnter, position, QPoint(-1, -1));
    QApplication::sendEvent(&widget, &enter);
    QHoverEvent move(QEvent::HoverMove, position, position);
    QApplication::sendEvent(&widget, &move);
    QMouseEvent mouseMove(QEvent::MouseMove, position, widget.mapToGlobal(position), Qt::NoButton,
                          Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &mouseMove);
}

/// Presses the left button on the widget and holds it.
inline void PressAt(QWidget& widget, const QPoint& position)
{
    HoverAt(widget, position);
    QMouseEvent press(QEvent::MouseButtonPress, position, widget.mapToGlobal(position),
                      Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &press);
}

} // namespace LumetraGallery
