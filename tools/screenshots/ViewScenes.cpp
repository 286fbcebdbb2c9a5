// SPDX-License-Identifier: GPL-2.0-or-later
#include "ViewScenes.h"

#include "EditorOnStage.h"
#include "SceneParts.h"

#include <QAbstractButton>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>

namespace LumetraScreenshots {
namespace {

QImage PlaySixSliders(EditorOnStage& stage, const QSize& size)
{
    stage.GetWindow().resize(size);
    stage.OpenSample();
    auto& panel = stage.Find<QWidget>("presetsPanel");
    panel.findChildren<QAbstractButton*>(QStringLiteral("qt_toolbox_toolboxbutton")).at(2)->click();
    stage.Settle();
    stage.ClickLook(QStringLiteral("Old Plate"));
    return stage.Grab();
}

} // namespace

QImage PlaySideBySide(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.ClickLook(Look);
    stage.FindAction("sideBySide").trigger();
    return stage.Grab();
}

QImage PlayClipping(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.ShowAdjust(Light);
    stage.SetAdjustment("exposure.stops", 120);
    stage.FindAction("clipping").trigger();
    stage.FindAction("backgroundMiddle").trigger();
    return stage.Grab();
}

QImage PlayFullScreen(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.ClickLook(Look);
    stage.FindAction("fullScreen").trigger();
    return stage.Grab();
}

QImage PlayLaptop(EditorOnStage& stage)
{
    return PlaySixSliders(stage, {1366, 768});
}

QImage PlaySmallest(EditorOnStage& stage)
{
    return PlaySixSliders(stage, {600, 480});
}

QImage PlayLargeScreen(EditorOnStage& stage)
{
    return PlaySixSliders(stage, {2560, 1440});
}

QImage PlayFolded(EditorOnStage& stage)
{
    stage.GetWindow().resize(1366, 768);
    stage.OpenSample();
    stage.ClickLook(Look);
    stage.Find<QWidget>("histogramSection").findChild<QPushButton*>()->click();
    stage.FindAction("slidersOpen").trigger();
    stage.FindAction("largeThumbnails").trigger();
    return stage.Grab();
}

QImage PlayListFolded(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.ClickLook(Look);
    stage.FindAction("listOpen").trigger();
    return stage.Grab();
}

QImage PlayPanelMenu(EditorOnStage& stage)
{
    stage.OpenSample();
    auto& button = stage.Find<QToolButton>("viewButton");
    const QPoint place = button.mapTo(&stage.GetWindow(), button.rect().bottomLeft());
    return stage.GrabWithPopups([&button] { button.menu()->popup({}); }, place);
}

} // namespace LumetraScreenshots
