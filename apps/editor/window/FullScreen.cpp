// SPDX-License-Identifier: GPL-2.0-or-later
#include "window/FullScreen.h"

#include "actions/EditorActions.h"
#include "canvas/PhotoCanvas.h"
#include "strip/PhotoBrowser.h"

#include <QAction>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenuBar>
#include <QMouseEvent>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>

namespace LumetraEditor {
namespace {

constexpr int Edge = 64;   // the height at the upper edge in which the pointer brings the button
constexpr int Margin = 16; // around the button

} // namespace

FullScreen::FullScreen(QMainWindow& window, EditorActions& actions, PhotoBrowser& browser,
                       QWidget& side, PhotoCanvas& canvas)
    : QObject(&window), m_window(window), m_actions(actions), m_browser(browser), m_side(side),
      m_canvas(canvas), m_centre(*canvas.parentWidget()), m_button(new QToolButton(&m_centre))
{
    m_button->setObjectName(QStringLiteral("leaveFullScreen"));
    m_button->setFocusPolicy(Qt::TabFocus);
    m_button->hide();
    ShowTexts();
    connect(m_button, &QToolButton::clicked, this, &FullScreen::Leave);
    connect(actions.fullScreen, &QAction::triggered, this, &FullScreen::Fill);
    window.installEventFilter(this);
    canvas.installEventFilter(this);
    m_centre.installEventFilter(this);
}

void FullScreen::Fill(bool isOn)
{
    m_window.setWindowState(m_window.windowState().setFlag(Qt::WindowFullScreen, isOn));
}

void FullScreen::FollowWindow()
{
    const bool isOn = m_window.isFullScreen();
    m_actions.fullScreen->setChecked(isOn);
    if (isOn == m_isOn)
        return;
    m_isOn = isOn;
    ShowFurniture(!isOn);
    m_canvas.setFocus();
    emit changed(isOn);
}

void FullScreen::ShowFurniture(bool isShown)
{
    if (!isShown)
        m_wasSideShown = !m_side.isHidden();
    m_window.menuBar()->setVisible(isShown);
    m_window.statusBar()->setVisible(isShown);
    for (QToolBar* const bar : m_window.findChildren<QToolBar*>())
        bar->setVisible(isShown);
    m_side.setVisible(isShown && m_wasSideShown);
    m_actions.sidePanel->setChecked(!m_side.isHidden());
    m_browser.SetStripAway(!isShown);
    m_button->setVisible(!isShown);
    PlaceButton();
}

void FullScreen::PlaceButton()
{
    m_button->adjustSize();
    m_button->move(m_centre.width() - m_button->width() - Margin, Margin);
    m_button->raise();
}

void FullScreen::ShowTexts()
{
    m_button->setText(tr("Leave Full Screen"));
    m_button->setToolTip(tr("Esc and F11 do the same"));
    m_button->setAccessibleName(m_button->text());
}

bool FullScreen::eventFilter(QObject* watched, QEvent* event)
{
    const auto type = event->type();
    if (watched == &m_window && type == QEvent::WindowStateChange)
        FollowWindow();
    if (watched == &m_window && type == QEvent::LanguageChange)
        ShowTexts();
    if (!m_isOn)
        return false;
    if (watched == &m_centre && type == QEvent::Resize)
        PlaceButton();
    if (watched == &m_canvas && type == QEvent::MouseMove)
        m_button->setVisible(static_cast<QMouseEvent*>(event)->y() < Edge);
    const bool isEscape = watched == &m_window && type == QEvent::KeyPress &&
                          static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
    if (isEscape)
        Leave();
    return isEscape;
}

} // namespace LumetraEditor
