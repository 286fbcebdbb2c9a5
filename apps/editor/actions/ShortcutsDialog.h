// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QDialog>

class QKeySequence;
class QTreeWidget;

namespace LumetraEditor {

class EditorActions;

/// Lists the keys of the window's commands, of the photo and of the panels. Made anew for each
/// showing. Keys cannot be changed here.
class ShortcutsDialog : public QDialog
{
    Q_OBJECT

public:
    ShortcutsDialog(const EditorActions& actions, QWidget* parent);

    /// The keys that work in a panel, under its title: those of its actions, in their order, and of
    /// its shortcuts that say in `whatsThis()` what they do; those that say the same share a row.
    void AddPanel(const QString& title, const QWidget& panel);

private:
    void AddCommands(const EditorActions& actions);
    void AddPhotoKeys();
    void AddStripKeys();
    void AddLayerKeys();
    void AddSection(const QString& title);
    void AddRow(const QString& text, const QString& keys);
    void AddRow(const QString& text, const QList<QKeySequence>& keys);
    void AddShortcuts(const QWidget& panel);

    QTreeWidget* m_list;
};

} // namespace LumetraEditor
