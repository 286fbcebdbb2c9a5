// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

class QString;
class QWidget;

namespace LumetraEditor {

/// Asks before the program ends during an export; true when the user gives the export up.
bool AskToStopExport(QWidget* parent);

/// Asks when the file of `photo` is not the one that was edited; true discards the edit for this
/// file. The default is No, as it changes nothing that is seen on the photo.
bool AskToStartAnew(const QString& photo, QWidget* parent);

/// Asks before a photo is left whose edit could not be written, for the reason `problem`; true
/// discards the edit. The default is to stay.
bool AskToLoseEdit(const QString& photo, const QString& problem, QWidget* parent);

} // namespace LumetraEditor
