// SPDX-License-Identifier: GPL-2.0-or-later
#include "actions/PhotoKeys.h"

#include "canvas/PhotoCanvas.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenuBar>

namespace LumetraEditor {
namespace {

bool IsZoomKey(int key)
{
    return key == Qt::Key_Plus || key == Qt::Key_Equal || key == Qt::Key_Minus ||
           key == Qt::Key_0 || key == Qt::Key_1 || key == Qt::Key_2 || key == Qt::Key_4;
}

bool IsSideArrow(int key)
{
    return key == Qt::Key_Left || key == Qt::Key_Right;
}

/// True when the focus takes the key. The question leaves out all modifiers but Alt: some keyboards
/// have the backslash on a third level, which counts as a modifier of the event but not of the
/// character.
bool IsTakenByFocus(QWidget& focus, const QKeyEvent& event)
{
    const auto modifiers = event.modifiers() & Qt::AltModifier;
    QKeyEvent question(QEvent::ShortcutOverride, event.key(), modifiers, event.text());
    question.ignore();
    QCoreApplication::sendEvent(&focus, &question);
    return question.isAccepted();
}

} // namespace

PhotoKeys::PhotoKeys(QWidget& window, PhotoCanvas& canvas)
    : QObject(&window), m_window(window), m_canvas(canvas)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool PhotoKeys::IsPhotoKey(const QKeyEvent& event) const
{
    const auto modifiers = event.modifiers();
    if (event.key() == Qt::Key_Backslash)
        return !(modifiers & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    if (IsSideArrow(event.key()))
        return modifiers == Qt::AltModifier && m_canvas.IsSplit();
    return IsZoomKey(event.key()) &&
           !(modifiers & ~(Qt::ShiftModifier | Qt::KeypadModifier | Qt::GroupSwitchModifier));
}

/// Hands keys to the photo. The release of the backslash ends the comparison wherever the focus has
/// gone.
bool PhotoKeys::PassOn(QWidget& focus, QKeyEvent& event)
{
    const bool isRelease = event.type() == QEvent::KeyRelease;
    if (isRelease ? event.key() != Qt::Key_Backslash || !m_canvas.IsComparing()
                  : !IsPhotoKey(event) || IsTakenByFocus(focus, event))
        return false;
    QCoreApplication::sendEvent(&m_canvas, &event);
    return true;
}

bool PhotoKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::WindowDeactivate && watched == &m_window)
        m_canvas.SetComparing(false); // the key's release will not come here
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease)
        return false;
    QWidget* const focus = QApplication::focusWidget();
    const bool isElsewhere = focus && watched == focus && focus != &m_canvas &&
                             focus->window() == &m_window && m_canvas.isVisible() &&
                             !QApplication::activePopupWidget() && !qobject_cast<QMenuBar*>(focus);
    return isElsewhere && PassOn(*focus, *static_cast<QKeyEvent*>(event));
}

} // namespace LumetraEditor
