// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

class QWidget;

namespace LumetraEditor {

class Editor;

/// Before the program ends while an export is running: true when the user gives it up.
bool AskToStopExport(QWidget* parent);

/// Before the program ends while a look shows that has not been applied for good: the user keeps it
/// for the next time or takes it off, which is then done. False when he wants to go on editing.
bool AskToLeaveEdit(Editor& editor, QWidget* parent);

} // namespace LumetraEditor
