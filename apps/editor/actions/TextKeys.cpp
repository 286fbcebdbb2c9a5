// SPDX-License-Identifier: GPL-2.0-or-later
#include "actions/TextKeys.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace LumetraEditor {
namespace {

// The keys that Qt's fields react to, as the platform defines them.
constexpr QKeySequence::StandardKey ClipboardKeys[] = {
    QKeySequence::Undo, QKeySequence::Redo,  QKeySequence::Cut,
    QKeySequence::Copy, QKeySequence::Paste, QKeySequence::SelectAll};
constexpr QKeySequence::StandardKey MovingKeys[] = {QKeySequence::Backspace,
                                                    QKeySequence::Delete,
                                                    QKeySequence::DeleteStartOfWord,
                                                    QKeySequence::DeleteEndOfWord,
                                                    QKeySequence::DeleteEndOfLine,
                                                    QKeySequence::DeleteCompleteLine,
                                                    QKeySequence::MoveToNextChar,
                                                    QKeySequence::MoveToPreviousChar,
                                                    QKeySequence::MoveToNextWord,
                                                    QKeySequence::MoveToPreviousWord,
                                                    QKeySequence::MoveToStartOfLine,
                                                    QKeySequence::MoveToEndOfLine,
                                                    QKeySequence::MoveToStartOfDocument,
                                                    QKeySequence::MoveToEndOfDocument,
                                                    QKeySequence::SelectNextChar,
                                                    QKeySequence::SelectPreviousChar,
                                                    QKeySequence::SelectNextWord,
                                                    QKeySequence::SelectPreviousWord,
                                                    QKeySequence::SelectStartOfLine,
                                                    QKeySequence::SelectEndOfLine,
                                                    QKeySequence::SelectStartOfDocument,
                                                    QKeySequence::SelectEndOfDocument};

bool IsTextField(const QWidget& widget)
{
    const auto* const box = qobject_cast<const QComboBox*>(&widget);
    return qobject_cast<const QLineEdit*>(&widget) ||
           qobject_cast<const QAbstractSpinBox*>(&widget) ||
           qobject_cast<const QTextEdit*>(&widget) ||
           qobject_cast<const QPlainTextEdit*>(&widget) || (box && box->isEditable());
}

template <std::size_t size>
bool IsOneOf(QKeyEvent& event, const QKeySequence::StandardKey (&keys)[size])
{
    return std::any_of(std::begin(keys), std::end(keys),
                       [&event](QKeySequence::StandardKey key) { return event.matches(key); });
}

/// True for keys that edit text. Under X11 some letters with Ctrl delete, as in Emacs; these stay
/// commands of the window.
bool IsEditingKey(QKeyEvent& event)
{
    const bool isLetter = event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z;
    return IsOneOf(event, ClipboardKeys) || (!isLetter && IsOneOf(event, MovingKeys));
}

} // namespace

TextKeys::TextKeys(QWidget& window) : QObject(&window), m_window(window)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool TextKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::ShortcutOverride)
        return false;
    const auto* const widget = qobject_cast<const QWidget*>(watched);
    const bool isOurs = widget && widget->window() == &m_window && IsTextField(*widget) &&
                        IsEditingKey(*static_cast<QKeyEvent*>(event));
    if (isOurs)
        event->accept();
    return isOurs;
}

} // namespace LumetraEditor
