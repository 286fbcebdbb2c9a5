// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

class QString;
class QWidget;

namespace LumetraEditor {

class Editor;

/// Before the program ends while an export is running: true when the user gives it up.
bool AskToStopExport(QWidget* parent);

/// Before the program ends while a look shows that has not been applied for good: the user keeps it
/// for the next time or takes it off, which is then done. False when he wants to go on editing.
bool AskToLeaveEdit(Editor& editor, QWidget* parent);

/// When the file of `photo` is another one than that which was edited: true gives up the edit for
/// this file. No is the default, as it changes nothing that is seen on the photo.
bool AskToStartAnew(const QString& photo, QWidget* parent);

/// Before a photo is left whose edit could not be written, for the reason `problem`: true lets the
/// edit go. The default is to stay.
bool AskToLoseEdit(const QString& photo, const QString& problem, QWidget* parent);

} // namespace LumetraEditor
