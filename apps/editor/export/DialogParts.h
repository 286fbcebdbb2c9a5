// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

class QDialogButtonBox;
class QPushButton;

namespace LumetraEditor {

/// The widget itself, with an object name.
template <class Widget>
Widget* Named(Widget* widget, const char* name)
{
    widget->setObjectName(QString::fromLatin1(name));
    return widget;
}

/// Adds the button that accepts the dialog: its default, in the accent's colour.
QPushButton* AddAccentButton(QDialogButtonBox& box, const QString& text, const char* name);

} // namespace LumetraEditor
