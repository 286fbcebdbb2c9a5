// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStringList>

namespace LumetraAdjust {
class Adjustments;
class AdjustPanel;
} // namespace LumetraAdjust

namespace LumetraEditor {
class Editor;
}

namespace LumetraTest {

/// Compares the Adjust panel with the values that it would store, and those with the package on the
/// photo. Everything must have settled before.
class AdjustAudit
{
public:
    /// Both are kept by reference.
    AdjustAudit(LumetraEditor::Editor& editor, LumetraAdjust::AdjustPanel& panel);

    /// A sentence for each difference; none when all is well.
    QStringList FindDifferences();

private:
    void ComparePackage(const LumetraAdjust::Adjustments& stored);
    void CompareSliders(const LumetraAdjust::Adjustments& stored);

    LumetraEditor::Editor& m_editor;
    LumetraAdjust::AdjustPanel& m_panel;
    QStringList m_differences;
};

} // namespace LumetraTest
