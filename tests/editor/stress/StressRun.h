// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "PanelInReach.h"

#include "session/Editor.h"
#include "window/EditorWindow.h"

#include <QStringList>
#include <QTemporaryDir>

#include <algorithm>
#include <memory>
#include <optional>
#include <random>

namespace LumetraEditor {
class LayersView;
class PhotoCanvas;
} // namespace LumetraEditor

namespace LumetraTest {

/// Random actions of a user on the editor with its looks, the same for the same seed. Checks now
/// and then that the canvas shows the drawer's packages, the list of layers and the file have them,
/// and the file draws the same photo; that the panel shows its model and the screen the panel; that
/// undoing everything and redoing it changes nothing; that a restart brings the last
/// edit back; and that memory does not grow.
class StressRun
{
public:
    explicit StressRun(unsigned seed);

    /// Runs; false, with a message on stderr, at the first check that fails.
    bool Run(int actions);

private:
    void Start();
    void Act();
    void ClickLook();
    void HoverLook();
    void DragSlider();
    void ClickButton();
    void TriggerAction();
    void UseCanvas();
    void UseList();
    void PressInList(int key, Qt::KeyboardModifiers modifiers);
    void DragInList();
    void Filter();
    void SaveLook();
    void OpenPhoto();
    void Open(const QString& path);
    void Settle();

    LumetraEditor::PhotoCanvas& GetCanvas();
    LumetraEditor::LayersView& GetList();
    LumetraHost::EditState ReadEdit();

    bool CheckNow();
    bool Check(const char* what, bool isTrue);
    bool CheckCanvas();
    bool CheckPanel();
    bool CheckList();
    bool CheckFile();
    bool CheckScreen();
    bool CheckUndo();
    bool CheckRestart();
    bool CheckMemory();

    /// Below `count`; 0 for an empty widget or list.
    int Pick(int count)
    {
        return std::uniform_int_distribution<int>(0, std::max(count, 1) - 1)(m_random);
    }
    template <class Widget>
    Widget* PickOne();

    std::mt19937 m_random;
    QTemporaryDir m_folder;
    QStringList m_photos;
    PanelInReach m_plugin;
    std::unique_ptr<LumetraEditor::Editor> m_editor;
    std::unique_ptr<LumetraEditor::EditorWindow> m_window;
    std::optional<std::size_t> m_memory; ///< after the first restart
    int m_action = 0;
};

} // namespace LumetraTest
