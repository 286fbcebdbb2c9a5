// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "edit/Editor.h"
#include "photo/Photo.h"
#include "window/EditorWindow.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace LumetraTest {

/// Lets events happen until `isDone`; a condition that never comes hangs the test.
void WaitUntil(const std::function<bool()>& isDone);

/// The left button goes down, the pointer moves, the button comes up.
void Drag(QWidget& widget, const QPoint& from, const QPoint& to);

/// A folder of its own for the files of a test, and for what programs keep of their users.
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

    /// Opens and waits, whether it succeeds or not.
    void Open(const QString& path);
    void LoadExamplePanel();
    QString GetMessage() const;
    template <class Widget>
    Widget* Find(const char* name) const
    {
        auto* const widget = window->findChild<Widget*>(QLatin1String(name));
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }
    QAction* FindAction(const char* name) const;

    std::unique_ptr<LumetraEditor::Editor> editor;
    std::unique_ptr<LumetraEditor::EditorWindow> window;
};

} // namespace LumetraTest
