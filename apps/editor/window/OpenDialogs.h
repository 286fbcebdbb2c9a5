// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStringList>

class QWidget;

namespace LumetraEditor {

class EditorSettings;

/// Asks for photos, and begins where something was opened last. Empty: none.
QStringList AskForPhotos(EditorSettings& settings, QWidget* parent);
/// Asks for a folder of photos, and begins in the one that was opened last. Empty: none.
QStringList AskForFolder(EditorSettings& settings, QWidget* parent);

} // namespace LumetraEditor
