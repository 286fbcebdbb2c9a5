// SPDX-License-Identifier: GPL-2.0-or-later
#include "Scenes.h"

#include "DialogScenes.h"
#include "EditorOnStage.h"
#include "SceneParts.h"
#include "ViewScenes.h"

#include "canvas/PhotoCanvas.h"
#include "strip/PhotoStrip.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSlider>
#include <QToolButton>
#include <QToolTip>

namespace LumetraScreenshots {
namespace {

// Without a photo

QImage PlayStart(EditorOnStage& stage)
{
    return stage.Grab();
}

QImage PlayRecent(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.FindAction("closePhoto").trigger();
    return stage.Grab();
}

// The photo

QImage PlayPhoto(EditorOnStage& stage)
{
    stage.OpenSample();
    return stage.Grab();
}

QImage PlayOpening(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.ClickLook(Look);
    stage.StartOpening();
    return stage.GrabNow();
}

QImage PlayZoom(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.ClickLook(Look);
    stage.GetWindow().findChild<LumetraEditor::PhotoCanvas*>()->SetZoom(4);
    return stage.Grab();
}

QImage PlaySplit(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.ClickLook(Look);
    stage.FindAction("split").trigger();
    return stage.Grab();
}

/// On a small screen, with an edited photo, a file that is no photo, and three selected.
QImage PlayStrip(EditorOnStage& stage)
{
    stage.GetWindow().resize(1366, 768);
    stage.OpenFolder();
    stage.ClickLook(Look);
    auto& strip = *stage.GetWindow().findChild<LumetraEditor::PhotoStrip*>();
    for (int i = 0; i < 2; ++i)
        Press(strip, Qt::Key_Right, {}, 1);
    Press(strip, Qt::Key_Right, Qt::ShiftModifier, 2);
    return stage.Grab();
}

/// One look on several photos, one of which cannot be changed.
QImage PlayMany(EditorOnStage& stage)
{
    stage.GetWindow().resize(1366, 768);
    stage.OpenFolder();
    auto& strip = *stage.GetWindow().findChild<LumetraEditor::PhotoStrip*>();
    Press(strip, Qt::Key_Right, Qt::ShiftModifier, 5);
    stage.ClickLook(Look);
    return stage.Grab();
}

QImage PlaySmallStrip(EditorOnStage& stage)
{
    stage.GetWindow().resize(600, 480);
    stage.OpenFolder();
    return stage.Grab();
}

QImage PlayMessage(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.OpenText();
    return stage.Grab();
}

// Looks

QImage PlayLook(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.ClickLook(Look);
    return stage.Grab();
}

QImage PlayHover(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.ClickLook(OtherLook);
    stage.PointAtLook(Look);
    return stage.Grab();
}

QImage PlayFocus(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.ClickLook(Look);
    QApplication::setActiveWindow(&stage.GetWindow());
    stage.Find<QSlider>("intensitySlider").setFocus(Qt::TabFocusReason);
    return stage.Grab();
}

QImage PlaySearch(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.Search(QStringLiteral("li"));
    return stage.Grab();
}

QImage PlayNothing(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.Search(QStringLiteral("snow"));
    return stage.Grab();
}

QImage PlayNoneOfMine(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.Find<QToolButton>("filterButton3").click();
    return stage.Grab();
}

QImage PlayMine(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.ClickLook(Look);
    stage.SaveLook(OwnLook);
    stage.ClickLook(OwnLook);
    stage.Find<QAction>("favouritePreset").trigger();
    return stage.Grab();
}

// The list of layers

/// Three looks, one of them off, and an adjustment; the lowest look is open again.
void PutLayers(EditorOnStage& stage)
{
    stage.GetWindow().resize(1366, 768);
    stage.OpenSample();
    for (const QString& look : {Look, OtherLook, QStringLiteral("Golden")}) {
        stage.ClickLook(look);
        stage.Find<QPushButton>("applyButton").click();
    }
    stage.ShowAdjust(0);
    stage.SetAdjustment("exposure.stops", 15);
    QApplication::setActiveWindow(&stage.GetWindow());
    auto& list = stage.Find<QAbstractItemView>("layersList");
    list.setFocus(Qt::TabFocusReason);
    list.setCurrentIndex(list.model()->index(2, 0));
    Press(list, Qt::Key_Space, {}, 1);
    list.setCurrentIndex(list.model()->index(3, 0));
    Press(list, Qt::Key_Return, {}, 1);
}

QImage PlayLayers(EditorOnStage& stage)
{
    PutLayers(stage);
    return stage.Grab();
}

QImage PlayLayersMenu(EditorOnStage& stage)
{
    PutLayers(stage);
    auto& list = stage.Find<QAbstractItemView>("layersList");
    const QPoint place = list.visualRect(list.model()->index(1, 0)).center();
    return stage.GrabWithPopups([&list, place] { emit list.customContextMenuRequested(place); },
                                list.viewport()->mapTo(&stage.GetWindow(), place) - QPoint(160, 0));
}

QImage PlayLayersFolded(EditorOnStage& stage)
{
    PutLayers(stage);
    stage.Find<QToolButton>("layersHeading").click();
    return stage.Grab();
}

// Adjustments

QImage PlayAdjust(EditorOnStage& stage)
{
    Adjust(stage);
    stage.ShowAdjust(Light);
    return stage.Grab();
}

QImage PlayCurve(EditorOnStage& stage)
{
    Adjust(stage);
    stage.ShowAdjust(Curve);
    auto& curve = stage.Find<QWidget>("curveEditor");
    Press(curve, Qt::Key_Insert, {}, 1);
    Press(curve, Qt::Key_Left, Qt::ShiftModifier, 5);
    Press(curve, Qt::Key_Down, Qt::ShiftModifier, 2);
    Press(curve, Qt::Key_Insert, {}, 1);
    Press(curve, Qt::Key_Up, Qt::ShiftModifier, 3);
    return stage.Grab();
}

QImage PlayMixer(EditorOnStage& stage)
{
    Adjust(stage);
    stage.ShowAdjust(Mixer);
    stage.SetAdjustment("colourMixer.orangeHue", -20);
    return stage.Grab();
}

QImage PlayGrading(EditorOnStage& stage)
{
    Adjust(stage);
    stage.ShowAdjust(Grading);
    auto& wheel = stage.Find<QWidget>("colourGrading.wheel.shadowHue");
    Press(wheel, Qt::Key_Up, Qt::ShiftModifier, 4);
    Press(wheel, Qt::Key_Left, Qt::ShiftModifier, 21);
    return stage.Grab();
}

// Menus and tool tips

QImage PlayMenu(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.ClickLook(Look);
    return stage.GrabWithPopups([&stage] { stage.AskForMenu(Look); },
                                stage.PlaceOf(Look) - QPoint(140, 0));
}

QImage PlayViewMenu(EditorOnStage& stage)
{
    stage.OpenSample();
    auto& bar = *stage.GetWindow().menuBar();
    QAction* const view = bar.actions()[2];
    const QPoint place = bar.mapTo(&stage.GetWindow(), bar.actionGeometry(view).bottomLeft());
    return stage.GrabWithPopups([view] { view->menu()->popup({}); }, place + QPoint(0, 1));
}

QImage PlayToolTip(EditorOnStage& stage)
{
    stage.OpenSample();
    auto& button = stage.Find<QToolButton>("compare");
    const QPoint place = button.mapTo(&stage.GetWindow(), QPoint(8, button.height() + 4));
    return stage.GrabWithPopups([&button] { QToolTip::showText({}, button.toolTip(), &button); },
                                place);
}

} // namespace

const std::vector<Scene>& AllScenes()
{
    using namespace DialogScenes;
    static const std::vector<Scene> scenes{
        {QStringLiteral("start"), PlayStart, "light-de@2x"},
        {QStringLiteral("recent"), PlayRecent},
        {QStringLiteral("photo"), PlayPhoto},
        {QStringLiteral("opening"), PlayOpening},
        {QStringLiteral("zoom"), PlayZoom},
        {QStringLiteral("split"), PlaySplit, "dark-en@1x"},
        {QStringLiteral("side-by-side"), PlaySideBySide},
        {QStringLiteral("clipping"), PlayClipping},
        {QStringLiteral("full-screen"), PlayFullScreen},
        {QStringLiteral("laptop"), PlayLaptop},
        {QStringLiteral("smallest"), PlaySmallest},
        {QStringLiteral("large-screen"), PlayLargeScreen},
        {QStringLiteral("folded"), PlayFolded},
        {QStringLiteral("list-folded"), PlayListFolded},
        {QStringLiteral("panel-menu"), PlayPanelMenu},
        {QStringLiteral("strip"), PlayStrip, "dark-en@1x"},
        {QStringLiteral("small-strip"), PlaySmallStrip},
        {QStringLiteral("many"), PlayMany},
        {QStringLiteral("message"), PlayMessage, "dark-de@1x"},
        {QStringLiteral("look"), PlayLook, "dark-en@1x"},
        {QStringLiteral("hover"), PlayHover, "dark-en@1x"},
        {QStringLiteral("focus"), PlayFocus},
        {QStringLiteral("search"), PlaySearch, "light-de@1x"},
        {QStringLiteral("nothing"), PlayNothing},
        {QStringLiteral("none-mine"), PlayNoneOfMine},
        {QStringLiteral("layers"), PlayLayers, "dark-en@1x"},
        {QStringLiteral("layers-menu"), PlayLayersMenu, "light-de@1x"},
        {QStringLiteral("layers-folded"), PlayLayersFolded},
        {QStringLiteral("mine"), PlayMine, "dark-de@1x"},
        {QStringLiteral("adjust"), PlayAdjust, "dark-en@1x"},
        {QStringLiteral("curve"), PlayCurve, "dark-en@1x"},
        {QStringLiteral("mixer"), PlayMixer},
        {QStringLiteral("grading"), PlayGrading},
        {QStringLiteral("save-look"), PlaySaveLook, "dark-en@1x"},
        {QStringLiteral("share"), PlayShare, "light-en@1x"},
        {QStringLiteral("imported"), PlayImported, "light-en@1x"},
        {QStringLiteral("importing"), PlayImporting},
        {QStringLiteral("import-menu"), PlayImportMenu},
        {QStringLiteral("menu"), PlayMenu, "light-en@1x"},
        {QStringLiteral("view-menu"), PlayViewMenu},
        {QStringLiteral("tool-tip"), PlayToolTip},
        {QStringLiteral("paste"), PlayPaste, "dark-en@1x"},
        {QStringLiteral("export"), PlayExport, "dark-de@1x"},
        {QStringLiteral("export-several"), PlayExportSeveral, "dark-en@1x"},
        {QStringLiteral("exporting"), PlayExporting},
        {QStringLiteral("exported"), PlayExported, "dark-en@1x"},
        {QStringLiteral("recipe"), PlayRecipe},
        {QStringLiteral("save"), PlaySave, "light-en@1x"},
        {QStringLiteral("taken"), PlayTaken},
        {QStringLiteral("delete"), PlayDelete},
        {QStringLiteral("refused"), PlayRefused},
        {QStringLiteral("kept"), PlayKept},
        {QStringLiteral("replaced"), PlayReplaced},
        {QStringLiteral("lost"), PlayLost},
        {QStringLiteral("shortcuts"), PlayShortcuts, "light-de@1x"},
        {QStringLiteral("modules"), PlayModules},
        {QStringLiteral("about"), PlayAbout, "dark-en@1x"}};
    return scenes;
}

} // namespace LumetraScreenshots
