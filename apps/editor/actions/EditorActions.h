// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "style/StyleColours.h"

#include <QObject>

#include <vector>

class QAction;
class QActionGroup;
class QMenu;
class QMenuBar;
class QToolBar;
class QUndoStack;
class QWidget;

namespace LumetraEditor {

/// The commands of the editor's window with their texts, keys and icons, and their menus. The
/// window connects them to their effects. `iconText()` is the command's name without the object
/// that it would be done to at this moment.
class EditorActions : public QObject
{
    Q_OBJECT

public:
    /// `window` takes the actions, so that their keys work in all of it.
    EditorActions(QWidget& window, QUndoStack& undoStack);

    void FillMenuBar(QMenuBar& bar);
    /// Adds the groups that a tool bar begins with.
    void FillToolBar(QToolBar& bar);
    void Translate();
    void SetIcons(LumetraHost::PaletteKind kind);
    /// Enables or disables the commands that need a photo.
    void SetPhotoEnabled(bool enabled);
    /// Enables or disables the commands that need a row of photos.
    void SetRowEnabled(bool enabled);

    /// Tells on how many photos the commands for several ones work.
    void SetTargets(int count);

    /// All commands with a key, in the order of the menus.
    std::vector<QAction*> GetKeyed() const;

    QAction* open;
    QAction* openFolder;
    QMenu* recent;
    QAction* clearRecent;
    QAction* previousPhoto;
    QAction* nextPhoto;
    QAction* exportPhoto;
    QAction* exportSeveral;
    QAction* closePhoto;
    QAction* quit;
    QAction* undo;
    QAction* redo;
    QAction* copyEdit;
    QAction* pasteEdit;
    QAction* pasteParts;
    QAction* putLook;
    QAction* revert;
    QAction* fit;
    QAction* actualSize;
    QAction* zoom200;
    QAction* zoom400;
    QAction* zoomIn;
    QAction* zoomOut;
    QAction* split;
    QAction* sideBySide;
    QAction* clipping;
    /// The colours around the photo, in the order of their menu.
    std::vector<QAction*> backgrounds;
    QAction* sidePanel;
    QAction* strip;
    QAction* fullScreen;
    QAction* light;
    QAction* dark;
    /// The menu of what is done to photos of the row; also that of the strip.
    QMenu* photos;
    QAction* selectAll;
    QAction* selectOne;
    QAction* orderByName;
    QAction* orderByTime;
    QAction* refresh;
    QAction* english;
    QAction* german;
    QAction* shortcuts;
    QAction* modules;
    QAction* about;

private:
    QAction* Add(const char* name, const QList<QKeySequence>& keys = {});
    void SetText(QAction* action, const QString& text);
    void ConnectUndo();
    void ShowSteps();
    void ShowTargets();

    QWidget& m_window;
    QUndoStack& m_undoStack;
    void MakeBackgrounds();

    QActionGroup* m_palettes;
    QActionGroup* m_orders;
    QActionGroup* m_languages;
    std::vector<QAction*> m_all;
    int m_targets = 0;
    QMenu *m_file, *m_edit, *m_view, *m_palette, *m_language, *m_background, *m_help;
};

} // namespace LumetraEditor
