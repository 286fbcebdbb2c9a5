// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/PresetModel.h"

#include <QDialog>
#include <QPersistentModelIndex>

#include <vector>

class QComboBox;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace LumetraPlugin {

/// Lets the user choose looks for one file, and say who has made them and what others may do with
/// them. It changes nothing.
class ShareDialog : public QDialog
{
    Q_OBJECT

public:
    /// Shows all presets of the model that can be drawn; `first` is chosen already.
    ShareDialog(const PresetModel& model, const QModelIndex& first, QWidget* parent);
    ~ShareDialog() override;

    /// The chosen presets in the order of the list; those that are gone meanwhile are left out.
    std::vector<QModelIndex> GetPresets() const;
    /// Empty: as each preset says.
    QString GetAuthor() const;
    QString GetLicence() const;

private:
    void FillList(const PresetModel& model, const QModelIndex& first);
    void AddPreset(QTreeWidgetItem& group, const QModelIndex& preset, bool isChosen);
    QWidget* MakeCredits(const LookCredits& credits);
    void ShowChoice();

    QTreeWidget* m_list;
    QLineEdit* m_author = nullptr;
    QComboBox* m_licence = nullptr;
    QPushButton* m_share = nullptr;
    std::vector<std::pair<QTreeWidgetItem*, QPersistentModelIndex>> m_presets;
};

} // namespace LumetraPlugin
