// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QTest>
#include <QWheelEvent>
#include <QWidget>
#include <QWindow>

namespace LumetraTest {

/// Mouse input that takes the way of the real one: through the window, so that grabs and enter and
/// leave events are the application's own. The widget's window must be shown.
class Mouse
{
public:
    static void Press(const QWidget& widget, const QPoint& position)
    {
        QTest::mousePress(Window(widget), Qt::LeftButton, Qt::NoModifier, Place(widget, position));
    }

    static void Move(const QWidget& widget, const QPoint& position)
    {
        QTest::mouseMove(Window(widget), Place(widget, position));
    }

    static void Release(const QWidget& widget, const QPoint& position)
    {
        QTest::mouseRelease(Window(widget), Qt::LeftButton, Qt::NoModifier,
                            Place(widget, position));
    }

    static void Click(const QWidget& widget)
    {
        const QPoint centre = widget.rect().center();
        Press(widget, centre);
        Release(widget, centre);
    }

private:
    static QWindow* Window(const QWidget& widget) { return widget.window()->windowHandle(); }

    static QPoint Place(const QWidget& widget, const QPoint& position)
    {
        return widget.mapTo(widget.window(), position);
    }
};

/// One notch of a wheel over the widget: up for positive `notches`.
inline void TurnWheel(QWidget& widget, int notches)
{
    const QPoint centre = widget.rect().center();
    QWheelEvent event(centre, widget.mapToGlobal(centre), QPoint(), QPoint(0, 120 * notches),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
}

inline void Show(QWidget& widget)
{
    widget.show();
    widget.activateWindow();
    (void)QTest::qWaitForWindowExposed(&widget);
    (void)QTest::qWaitForWindowActive(&widget);
}

} // namespace LumetraTest
