// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "RandomChoice.h"

#include <QPoint>

namespace LumetraEditor {
class EditorWindow;
}

namespace LumetraTest {

/// Random actions of a user on the Adjust panel.
class AdjustActions
{
public:
    /// Both are kept by reference.
    AdjustActions(LumetraEditor::EditorWindow& window, RandomChoice& choice);

    void Act();

private:
    QWidget& GetPanel();
    void ChooseTab();
    void Fold();
    void DragControl();
    void DragIn(QWidget& control);
    void PressCurveKey();
    void Type();
    void ClickButton();
    void SaveLook();

    LumetraEditor::EditorWindow& m_window;
    RandomChoice& m_choice;
};

} // namespace LumetraTest
