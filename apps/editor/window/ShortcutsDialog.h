// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QDialog>

class QTreeWidget;

namespace LumetraEditor {

class EditorActions;

/// Lists the keys of the window's commands and of the photo.
class ShortcutsDialog : public QDialog
{
    Q_OBJECT

public:
    ShortcutsDialog(const EditorActions& actions, QWidget* parent);

private:
    void AddCommands(const EditorActions& actions);
    void AddPhotoKeys();
    void AddRow(const QString& text, const QString& keys);

    QTreeWidget* m_list;
};

} // namespace LumetraEditor
