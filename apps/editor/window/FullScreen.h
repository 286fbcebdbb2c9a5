// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QObject>

class QMainWindow;
class QToolButton;

namespace LumetraEditor {

class EditorActions;
class PhotoBrowser;
class PhotoCanvas;

/// Fills the screen with the photo alone: menus, tool bar, status bar, side panel and strip go, and
/// come back as they were. Escape ends it, and so does a button that the pointer brings by moving
/// to the upper edge; the side panel and the strip can be called by their keys.
class FullScreen : public QObject
{
    Q_OBJECT

public:
    /// All are kept by reference; the window, whose child this is, holds the others.
    FullScreen(QMainWindow& window, EditorActions& actions, PhotoBrowser& browser, QWidget& side,
               PhotoCanvas& canvas);

    bool IsOn() const { return m_isOn; }
    void Leave() { Fill(false); }

signals:
    void changed(bool isOn);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Fill(bool isOn);
    /// Follows the window's state, which a window manager changes too.
    void FollowWindow();
    void ShowFurniture(bool isShown);
    void PlaceButton();
    void ShowTexts();

    QMainWindow& m_window;
    EditorActions& m_actions;
    PhotoBrowser& m_browser;
    QWidget& m_side;
    PhotoCanvas& m_canvas;
    QWidget& m_centre;
    QToolButton* m_button;
    bool m_isOn = false;
    bool m_wasSideShown = true;
};

} // namespace LumetraEditor
