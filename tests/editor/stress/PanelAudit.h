// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QModelIndex>
#include <QStringList>

class QWidget;

namespace LumetraEditor {
class Editor;
}

namespace LumetraPlugin {
class PresetGrid;
class PresetModel;
class PresetsPanel;
} // namespace LumetraPlugin

namespace LumetraTest {

/// Compares the presets panel with its model, with the photo's packages and with the files beside
/// the user's presets. Looks at widgets only as a user does: texts, marks, values, rows, pictures.
/// Everything must have settled before.
class PanelAudit
{
public:
    /// Both are kept by reference.
    PanelAudit(LumetraEditor::Editor& editor, LumetraPlugin::PresetsPanel& panel);

    /// A sentence for each difference; none when all is well.
    QStringList FindDifferences();

private:
    void ComparePages();
    void ComparePage(int group);
    void CompareRecent();
    bool ShowsRecent() const;
    void CompareRow(LumetraPlugin::PresetGrid& grid, int row, const QModelIndex& preset);
    void CompareThumbnail(LumetraPlugin::PresetGrid& grid, int row, const QModelIndex& preset);
    void CompareControls();
    void CompareSlider(const QString& name, const QModelIndex& preset, int value, int least,
                       int most);
    void CompareExtraSliders();
    void ComparePackage();

    bool IsExpected(const QModelIndex& preset) const;
    bool IsOfCheckedKind(const QModelIndex& preset) const;
    template <class Widget>
    Widget* Find(const QString& name) const;
    template <class Value>
    void Expect(const QString& what, const Value& shown, const Value& expected);

    LumetraEditor::Editor& m_editor;
    LumetraPlugin::PresetModel& m_model;
    QWidget& m_widget;
    QModelIndex m_applied;
    QStringList m_differences;
};

} // namespace LumetraTest
