// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/Photo.h"
#include "session/Editor.h"
#include "window/EditorWindow.h"

#include <QImage>
#include <QModelIndex>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <utility>

class QListView;

namespace LumetraHost {
class LiveView;
}

namespace LumetraTest {

/// Processes events until `isDone`; a condition that never comes true hangs the test.
void WaitUntil(const std::function<bool()>& isDone);

/// The left button goes down, the pointer moves, the button comes up.
void Drag(QWidget& widget, const QPoint& from, const QPoint& to);

/// A separate folder for the files of a test, and for the programs' files of their users.
class EditorFolder : public testing::Test
{
protected:
    EditorFolder();

    QString Path(const char* name) const;
    QString WriteFile(const char* name, const QByteArray& content) const;
    QByteArray ReadFile(const char* name) const;
    /// A photo of gradients.
    QString WritePhoto(const char* name, int width, int height) const;
    /// A file of the sample photos' format of which the end is missing.
    QString WriteTruncatedPhoto(const char* name) const;

private:
    QTemporaryDir m_folder;
};

/// The editor with its window, on the screen of the test's platform.
class EditorTest : public EditorFolder
{
protected:
    EditorTest();
    ~EditorTest() override;

    /// Opens a photo and waits until that has succeeded or failed.
    void Open(const QString& path);
    void LoadExamplePanel();
    void LoadPresetsPanel();
    /// Ends the editor as closing its window does, with no question expected, and starts another.
    void Restart();
    QString GetMessage() const;
    template <class Widget>
    Widget* Find(const char* name) const
    {
        auto* const widget = window->findChild<Widget*>(QLatin1String(name));
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }
    /// The one object of this class in the window.
    template <class Type>
    Type& GetPart() const
    {
        auto* const part = window->findChild<Type*>();
        EXPECT_NE(part, nullptr);
        return *part;
    }
    QAction* FindAction(const char* name) const;
    /// Where the canvas' pictures are rendered.
    LumetraHost::LiveView& GetCanvasView() const;
    /// Where the picture is rendered that the histogram counts.
    LumetraHost::LiveView& GetHistogramView() const;
    /// The open photo is being exported.
    bool IsExporting() const;
    /// The files are dropped on the window.
    void DropFiles(const QStringList& paths) const;
    /// The canvas' picture when everything has been rendered, without anything over it.
    QImage GetPicture() const;

    // Steps of a user in the presets panel.
    /// The list that shows a look, and the look's place in it.
    std::pair<QListView*, QModelIndex> FindLook(const QString& name) const;
    bool HasLook(const QString& name) const;
    QPoint PlaceOf(const QString& look) const;
    void ClickLook(const QString& name) const;
    void PointAtLook(const QString& name) const;
    /// The name of the look on the photo, from the panel's head.
    QString GetAppliedName() const;
    /// The dialog that opens gets this name and is accepted; true when it then closed.
    bool NameBy(const char* action, const QString& name) const;

private:
    void Start();

protected:
    std::unique_ptr<LumetraEditor::Editor> editor;
    std::unique_ptr<LumetraEditor::EditorWindow> window;
};

} // namespace LumetraTest
