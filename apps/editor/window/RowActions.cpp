// SPDX-License-Identifier: GPL-2.0-or-later
#include "window/RowActions.h"

#include "actions/EditorActions.h"
#include "strip/PhotoBrowser.h"
#include "strip/PhotoStrip.h"

#include <QAction>
#include <QMenu>

namespace LumetraEditor {
namespace {

void ShowState(EditorActions& actions, const PhotoBrowser& browser)
{
    actions.previousPhoto->setEnabled(browser.HasNeighbour(-1));
    actions.nextPhoto->setEnabled(browser.HasNeighbour(1));
    const bool isByTime = browser.GetOrder() == PhotoOrder::Time;
    (isByTime ? actions.orderByTime : actions.orderByName)->setChecked(true);
}

void ConnectCommands(EditorActions& actions, PhotoBrowser& browser)
{
    const auto on = [&browser](QAction* action, auto&& operation) {
        QObject::connect(action, &QAction::triggered, &browser, operation);
    };
    on(actions.previousPhoto, [&browser] { browser.OpenNeighbour(-1); });
    on(actions.nextPhoto, [&browser] { browser.OpenNeighbour(1); });
    on(actions.selectAll, [&browser] { browser.SelectAll(); });
    on(actions.selectOne, [&browser] { browser.SelectOnlyCurrent(); });
    on(actions.orderByName, [&browser] { browser.SetOrder(PhotoOrder::Name); });
    on(actions.orderByTime, [&browser] { browser.SetOrder(PhotoOrder::Time); });
    on(actions.refresh, [&browser] { browser.Refresh(); });
    on(actions.strip, [&browser](bool checked) { browser.SetStripShown(checked); });
}

} // namespace

void ConnectRowActions(EditorActions& actions, PhotoBrowser& browser, PhotoStrip& strip)
{
    ConnectCommands(actions, browser);
    QObject::connect(&browser, &PhotoBrowser::placeChanged, &actions,
                     [&actions, &browser] { ShowState(actions, browser); });
    QObject::connect(&browser, &PhotoBrowser::stripChanged, &actions,
                     [&actions](bool isShown, bool isPossible) {
                         actions.SetRowEnabled(isPossible);
                         actions.strip->setChecked(isShown);
                     });
    QObject::connect(&strip, &PhotoStrip::menuRequested, actions.photos,
                     [&actions](const QPoint& place) { actions.photos->popup(place); });
    actions.SetRowEnabled(false);
    ShowState(actions, browser);
}

} // namespace LumetraEditor
