// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "edit/EditChanges.h"
#include "many/ManyTexts.h"

#include <QDialog>
#include <QString>

#include <utility>
#include <vector>

class QCheckBox;
class QPushButton;
class QRadioButton;

namespace LumetraEditor {

class EditorSettings;

/// Ids of modules and their titles, in the order in which the user sees them.
using ModuleTitles = std::vector<std::pair<QString, QString>>;

/// Asks which parts of a copied edit are pasted, and how. Remembers the last answer.
class PasteDialog : public QDialog
{
    Q_OBJECT

public:
    /// Offers the parts of `modules` and those that `copied` has beside them. `settings` is kept by
    /// reference. `count` photos are selected.
    PasteDialog(const LumetraHost::EditState& copied, const ModuleTitles& modules,
                const NameLayer& nameLayer, int count, EditorSettings& settings,
                QWidget* parent = nullptr);

    EditParts GetParts() const;
    /// True: the layers come on top of those of the photos; false: in place of the same parts.
    bool IsOnTop() const;

public slots:
    void accept() override;

private:
    void AddPart(const QString& module, const QString& title, const NameLayer& nameLayer);
    void Restore();
    void Update();

    LumetraHost::EditState m_copied;
    EditorSettings& m_settings;
    std::vector<std::pair<QString, QCheckBox*>> m_parts; ///< by module
    QRadioButton* m_replace;
    QRadioButton* m_onTop;
    QPushButton* m_paste;
};

} // namespace LumetraEditor
