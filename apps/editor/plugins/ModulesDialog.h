// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QDialog>

#include <functional>
#include <vector>

class QTreeWidget;

namespace LumetraEditor {

class EditorSettings;
struct FoundModule;

/// Lists the modules that were found when the editor started: what became of each, and where it
/// lies. Its ticks say which ones are loaded at the next start; the settings keep them at once.
class ModulesDialog : public QDialog
{
    Q_OBJECT

public:
    /// `isInUse` tells of the id of a loaded module whether its panel has not failed. The settings
    /// must outlive the dialog.
    ModulesDialog(const std::vector<FoundModule>& modules, EditorSettings& settings,
                  const std::function<bool(const QString& id)>& isInUse, QWidget* parent);

private:
    void AddRow(const FoundModule& module, const QString& state);
    void Save();

    EditorSettings& m_settings;
    QTreeWidget* m_list;
};

} // namespace LumetraEditor
