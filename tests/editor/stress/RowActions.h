// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "RandomChoice.h"

namespace LumetraEditor {
class Editor;
class EditorWindow;
} // namespace LumetraEditor

namespace LumetraTest {

/// Random actions of a user on the row of photos: stepping, selecting, and commands on the selected
/// photos.
class RowActions
{
public:
    /// All are kept by reference.
    RowActions(LumetraEditor::Editor& editor, LumetraEditor::EditorWindow& window,
               RandomChoice& choice);

    void Act();

private:
    void Step();
    void ClickInStrip();
    void Command();
    void Trigger(const char* action);

    LumetraEditor::Editor& m_editor;
    LumetraEditor::EditorWindow& m_window;
    RandomChoice& m_choice;
};

} // namespace LumetraTest
