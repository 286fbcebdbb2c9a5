// SPDX-License-Identifier: GPL-2.0-or-later
#include "window/WindowPlace.h"

#include <QByteArray>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace LumetraEditor {
namespace {

/// The frame of common desktops; the real one is not known before the window is shown.
constexpr QMargins Frame(4, 40, 4, 4);

/// The part of the screen for the window's contents, its frame left out.
QRect GetRoom(const QWidget& window)
{
    const QScreen* screen = QGuiApplication::screenAt(window.geometry().center());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    return screen ? screen->availableGeometry().marginsRemoved(Frame) : window.geometry();
}

/// The rectangle, shrunk and moved as far as needed to lie inside `room`.
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
    // A program begins with its menus in sight, whatever it was left with.
    window.setWindowState(window.windowState() & ~Qt::WindowFullScreen);
    // Maximized windows are left alone: Qt limits the size to which they go back.
    const QRect fitting = FitInto(GetRoom(window), window.geometry());
    if (!window.isMaximized() && fitting != window.geometry())
        window.setGeometry(fitting);
}

} // namespace LumetraEditor
