// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "edit/Editor.h"
#include "style/StyleColours.h"
#include "window/EditorWindow.h"

#include <QTemporaryDir>

#include <memory>

class QAbstractItemView;
class QModelIndex;

namespace LumetraScreenshots {

/// The editor with its panels and a copy of the sample photo, apart from the user's own files, and
/// hands that work on it. What it shows is complete: every rendering is waited for.
class EditorOnStage
{
public:
    EditorOnStage(LumetraHost::PaletteKind kind, const QString& language);
    ~EditorOnStage();

    LumetraEditor::EditorWindow& GetWindow() { return *m_window; }

    void OpenSample();
    /// A file that is no photo, under the name of one.
    void OpenText();
    /// Clicks on the look of that name, as the catalogue has it.
    void ClickLook(const QString& name);
    void MoveIntensity(int percent);
    void Search(const QString& text);

    void Settle();
    /// The window when everything has been rendered.
    QImage Grab();

private:
    QString CopySample();
    QModelIndex FindLook(const QString& name, QAbstractItemView*& view) const;
    void WaitUntilOpen();

    QTemporaryDir m_folder;
    std::unique_ptr<LumetraEditor::Editor> m_editor;
    std::unique_ptr<LumetraEditor::EditorWindow> m_window;
};

} // namespace LumetraScreenshots
