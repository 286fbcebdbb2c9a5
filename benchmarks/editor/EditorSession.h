// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QSize>
#include <QString>
#include <QTemporaryDir>

#include <memory>

class QSlider;

namespace LumetraEditor {
class Editor;
class EditorWindow;
class PhotoCanvas;
} // namespace LumetraEditor

namespace LumetraHost {
class LiveView;
}

namespace LumetraBenchmark {

/// An editor in its window, at the corner of the screen, with the settings of a new user. An
/// application has to be there.
class EditorSession
{
public:
    explicit EditorSession(const QSize& size);
    ~EditorSession();

    LumetraEditor::Editor& GetEditor() { return *m_editor; }
    LumetraEditor::EditorWindow& GetWindow() { return *m_window; }
    LumetraEditor::PhotoCanvas& GetCanvas();
    LumetraHost::LiveView& GetView();
    QSlider& GetIntensity();

    /// Opens the photo and waits until it and the thumbnails in sight are shown.
    void Open(const QString& path);
    /// Clicks the look of that name; std::runtime_error where there is none.
    void ClickLook(const QString& name);
    /// Makes the look part of the photo, so that the next one comes on top of it.
    void KeepLook();
    /// Lets events come for some milliseconds, and then waits for the exact picture.
    void Settle(int milliseconds = 1000);

private:
    QTemporaryDir m_settings;
    std::unique_ptr<LumetraEditor::Editor> m_editor;
    std::unique_ptr<LumetraEditor::EditorWindow> m_window;
};

} // namespace LumetraBenchmark
