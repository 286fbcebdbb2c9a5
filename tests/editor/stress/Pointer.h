// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QApplication>
#include <QMouseEvent>
#include <QWidget>

namespace LumetraTest {

/// Sends an event of the left button, or a move. `down`: the buttons that are held afterwards.
inline void SendMouse(QWidget& widget, QEvent::Type type, const QPoint& at, Qt::MouseButtons down,
                      Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QMouseEvent event(type, at, widget.mapToGlobal(at),
                      type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, down, modifiers);
    QApplication::sendEvent(&widget, &event);
}

/// Presses and releases the left button.
inline void SendClick(QWidget& widget, const QPoint& at,
                      Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    SendMouse(widget, QEvent::MouseButtonPress, at, Qt::LeftButton, modifiers);
    SendMouse(widget, QEvent::MouseButtonRelease, at, Qt::NoButton, modifiers);
}

} // namespace LumetraTest
