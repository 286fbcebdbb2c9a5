// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/PresetModel.h"
#include "panel/commands/ShareCredits.h"

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
    /// Shows all presets of the model that can be drawn; `first` is chosen already. Proposes what
    /// `first` says of its author and licence, or else what was said `last`.
    ShareDialog(const PresetModel& model, const QModelIndex& first, const ShareCredits& last,
                QWidget* parent);
    ~ShareDialog() override;

    /// The chosen presets in the order of the list; those that are gone meanwhile are left out.
    std::vector<QModelIndex> GetPresets() const;
    /// The credits of a look that has `own` ones. What the user typed goes for every look; what
    /// was only proposed, or left empty, leaves looks their own.
    LookCredits MakeCredits(const LookCredits& own) const;
    /// Keeps what is to be proposed next time.
    ShareCredits MakeLast() const;

private:
    void FillList(const PresetModel& model, const QModelIndex& first);
    void AddPreset(QTreeWidgetItem& group, const QModelIndex& preset, bool isChosen);
    QWidget* MakeFields(const ShareCredits& proposed);
    QString GetAuthor() const;
    QString GetLicence() const;
    void ShowChoice();

    const ShareCredits m_last;
    const ShareCredits m_own; ///< of the first look
    const ShareCredits m_proposed;
    QTreeWidget* m_list;
    QLineEdit* m_author = nullptr;
    QComboBox* m_licence = nullptr;
    QPushButton* m_share = nullptr;
    std::vector<std::pair<QTreeWidgetItem*, QPersistentModelIndex>> m_presets;
};

} // namespace LumetraPlugin
