// SPDX-License-Identifier: GPL-2.0-or-later
#include "window/WindowPlace.h"

#include <QByteArray>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace LumetraEditor {
namespace {

/// Nobody knows the frame before the window is shown. This is that of common desktops.
constexpr QMargins Frame(4, 40, 4, 4);

/// The part of the screen that the window may fill without its frame.
QRect GetRoom(const QWidget& window)
{
    const QScreen* screen = QGuiApplication::screenAt(window.geometry().center());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    return screen ? screen->availableGeometry().marginsRemoved(Frame) : window.geometry();
}

/// The rectangle as far as it is too large made smaller, and moved as far as it stands out.
QRect FitInto(const QRect& room, QRect rectangle)
{
    rectangle.setSize(rectangle.size().boundedTo(room.size()));
    rectangle.moveLeft(
        std::clamp(rectangle.left(), room.left(), room.right() + 1 - rectangle.width()));
    rectangle.moveTop(
        std::clamp(rectangle.top(), room.top(), room.bottom() + 1 - rectangle.height()));
    return rectangle;
}

} // namespace

void RestorePlace(QWidget& window, const QByteArray& stored, const QSize& first)
{
    if (!window.restoreGeometry(stored)) {
        window.resize(first.boundedTo(GetRoom(window).size()));
        return;
    }
    // A window that fills the screen goes back to a size that Qt has limited.
    const QRect fitting = FitInto(GetRoom(window), window.geometry());
    if (!window.isMaximized() && !window.isFullScreen() && fitting != window.geometry())
        window.setGeometry(fitting);
}

} // namespace LumetraEditor
