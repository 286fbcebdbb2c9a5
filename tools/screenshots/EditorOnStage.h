// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "session/Editor.h"
#include "style/StyleColours.h"
#include "window/EditorWindow.h"

#include <QAction>
#include <QTemporaryDir>

#include <functional>
#include <map>
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
    /// A part of the window by its object name; the program ends when there is none.
    template <class Part>
    Part& Find(const char* name)
    {
        auto* const part = m_window->findChild<Part*>(QLatin1String(name));
        if (!part)
            qFatal("expected the window to have a \"%s\"", name);
        return *part;
    }

    QAction& FindAction(const char* name) { return Find<QAction>(name); }

    void OpenSample();
    /// Opens a folder with parts of the sample photo, one file of which is no photo.
    void OpenFolder();
    /// Begins to open a photo and does not wait: the panel is locked then.
    void StartOpening();
    /// Opens a file that is no photo, under the name of one.
    void OpenText();
    /// Clicks on the look of that name, as the catalogue has it.
    void ClickLook(const QString& name);
    /// Rests on the look until it is shown on the photo.
    void PointAtLook(const QString& name);
    /// The place of the look's picture in the window.
    QPoint PlaceOf(const QString& look);
    void AskForMenu(const QString& look);
    /// Writes a folder of files, by their names, and returns its path.
    QString WriteFiles(const std::map<QString, QByteArray>& files);
    /// Drops a file or a folder on the presets panel.
    void DropOnPanel(const QString& path);
    void Search(const QString& text);
    /// Shows the Adjust panel with that section open, and no other one; sections count from 0.
    void ShowAdjust(int section);
    /// Moves a control of the Adjust panel, a slider by its parameter, as "exposure.stops".
    void SetAdjustment(const char* parameter, int position);
    /// Saves what is on the photo as a preset.
    void SaveLook(const QString& name);

    void Settle();
    /// The window when everything has been rendered.
    QImage Grab();
    /// The window as it is at this moment.
    QImage GrabNow();
    /// Does `open`, which opens a dialog, a menu or a tool tip, lets `work` go on in it, and gives
    /// the window with all that is open over it, as a desktop shows them. Dialogs stand in the
    /// middle, other things at `place`. Everything is shut again.
    QImage GrabWithPopups(const std::function<void()>& open, const QPoint& place = {},
                          const std::function<void()>& work = {});
    /// Does `open`, and gives the window with what is over it as soon as a part of this object name
    /// is seen, which may be much later. Everything is shut again.
    QImage GrabWhenShown(const char* name, const std::function<void()>& open);

private:
    QString CopySample();
    QModelIndex FindLook(const QString& name, QAbstractItemView*& view) const;
    void WaitUntilOpen();
    void WaitForThumbnails();
    /// The picture with all that is open over the window.
    QImage Compose(QImage picture, const QPoint& place) const;

    QTemporaryDir m_folder;
    std::unique_ptr<LumetraEditor::Editor> m_editor;
    std::unique_ptr<LumetraEditor::EditorWindow> m_window;
};

} // namespace LumetraScreenshots
