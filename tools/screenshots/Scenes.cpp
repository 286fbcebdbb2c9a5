// SPDX-License-Identifier: GPL-2.0-or-later
#include "Scenes.h"

#include "EditorOnStage.h"

#include "canvas/PhotoCanvas.h"
#include "strip/PhotoStrip.h"
#include "window/MessageBar.h"
#include "window/Questions.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDialog>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSlider>
#include <QTimer>
#include <QToolButton>
#include <QToolTip>

namespace LumetraScreenshots {
namespace {

const QString Look = QStringLiteral("Candlelight");
const QString OtherLook = QStringLiteral("Fresh");
const QString Sample = QStringLiteral("lake.jpg");
const QString OwnLook = QStringLiteral("My Evening");

void Press(QWidget& widget, int key, Qt::KeyboardModifiers modifiers, int times)
{
    for (int i = 0; i < times; ++i)
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, modifiers);
            QApplication::sendEvent(&widget, &event);
        }
}

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

// Adjustments

constexpr int Light = 0, Curve = 2, Mixer = 3, Grading = 4, Effects = 6;

/// A warm evening of light, curve, wheels and vignette.
void Adjust(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.ShowAdjust(Light);
    stage.SetAdjustment("exposure.stops", 35);
    stage.SetAdjustment("contrast.amount", 18);
    stage.SetAdjustment("toneRegions.highlights", -40);
    stage.ShowAdjust(Effects);
    stage.SetAdjustment("vignette.amount", -120);
}

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

// Dialogs

QImage WithDialog(EditorOnStage& stage, QAction& command, const std::function<void()>& work = {})
{
    return stage.GrabWithPopups([&command] { command.trigger(); }, {}, work);
}

QImage PlayPaste(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.ClickLook(Look);
    stage.FindAction("copyEdit").trigger();
    return WithDialog(stage, stage.FindAction("pasteParts"));
}

QImage PlayExport(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.ClickLook(Look);
    return WithDialog(stage, stage.FindAction("exportPhoto"));
}

QImage PlayExportSeveral(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.ClickLook(Look);
    return WithDialog(stage, stage.FindAction("exportSeveral"));
}

QImage PlayRecipe(EditorOnStage& stage)
{
    stage.OpenSample();
    return WithDialog(stage, stage.FindAction("exportSeveral"), [] {
        QApplication::activeModalWidget()
            ->findChild<QPushButton*>(QStringLiteral("recipeEdit"))
            ->click();
    });
}

QImage PlaySave(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.ClickLook(Look);
    return WithDialog(stage, stage.Find<QAction>("savePreset"));
}

QImage PlaySaveLook(EditorOnStage& stage)
{
    Adjust(stage);
    auto& save = stage.Find<QPushButton>("saveLook");
    return stage.GrabWithPopups([&save] { save.click(); }, {},
                                [] {
                                    auto* const dialog =
                                        qobject_cast<QDialog*>(QApplication::activeModalWidget());
                                    dialog->findChild<QLineEdit*>()->setText(OwnLook);
                                });
}

/// Two looks with their author on their way into a file.
QImage PlayShare(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.ClickLook(Look);
    stage.SaveLook(OwnLook);
    stage.ClickLook(OwnLook);
    return WithDialog(stage, stage.FindAction("sharePreset"), [] {
        auto* const dialog = QApplication::activeModalWidget();
        dialog->findChild<QLineEdit*>(QStringLiteral("author"))->setText(QStringLiteral("Ada"));
        dialog->findChild<QComboBox*>(QStringLiteral("licence"))
            ->setCurrentText(QStringLiteral("CC-BY-4.0"));
    });
}

constexpr char Faded[] =
    "<rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\"><rdf:Description "
    "xmlns:crs=\"http://ns.adobe.com/camera-raw-settings/1.0/\" crs:Exposure2012=\"+0.25\" "
    "crs:Contrast2012=\"-22\" crs:Vibrance=\"-14\" crs:GrainAmount=\"31\" "
    "crs:LuminanceSmoothing=\"25\" crs:LensProfileEnable=\"1\"/></rdf:RDF>";

/// A folder of other programs' looks has come in.
QImage PlayImported(EditorOnStage& stage)
{
    stage.OpenSample();
    const QString folder =
        stage.WriteFiles({{QStringLiteral("Faded Film.xmp"), Faded},
                          {QStringLiteral("Print Sizes.lrtemplate"), "s = { type = \"Export\" }"}});
    stage.DropOnPanel(folder); // the window that tells of it stays
    return stage.GrabWithPopups([] {});
}

QImage PlayImportMenu(EditorOnStage& stage)
{
    stage.OpenSample();
    auto& button = stage.Find<QAbstractButton>("importButton");
    const QPoint place = button.rect().bottomLeft();
    return stage.GrabWithPopups(
        [&button, place] {
            QContextMenuEvent event(QContextMenuEvent::Mouse, place, button.mapToGlobal(place));
            QApplication::sendEvent(&button, &event);
        },
        button.mapTo(&stage.GetWindow(), place));
}

/// The name is taken already.
QImage PlayTaken(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.ClickLook(Look);
    stage.SaveLook(OwnLook);
    return WithDialog(stage, stage.Find<QAction>("savePreset"), [] {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        dialog->findChild<QLineEdit*>()->setText(OwnLook);
        dialog->accept();
    });
}

QImage PlayDelete(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.ClickLook(Look);
    stage.SaveLook(OwnLook);
    stage.ClickLook(OwnLook);
    return WithDialog(stage, stage.Find<QAction>("removePreset"));
}

QImage PlayLeave(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.ClickLook(Look);
    return stage.GrabWithPopups([&stage] { stage.GetWindow().close(); });
}

/// The photo itself was chosen as the output.
QImage PlayRefused(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.ClickLook(Look);
    return WithDialog(stage, stage.FindAction("exportPhoto"), [] {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        auto* const path = dialog->findChild<QLineEdit*>(QStringLiteral("exportPath"));
        path->setText(path->text().replace(QFileInfo(path->text()).fileName(), Sample));
        dialog->accept();
    });
}

/// A folder is in the way of the file beside the photo, as on a medium that cannot be written.
QImage PlayKept(EditorOnStage& stage)
{
    stage.OpenSample();
    QDir().mkpath(stage.GetWindow().windowFilePath() + QStringLiteral(".lumetra.json"));
    stage.ClickLook(Look);
    while (stage.GetWindow().findChild<LumetraEditor::MessageBar*>()->GetText().isEmpty())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return stage.Grab();
}

QImage PlayReplaced(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.ClickLook(Look);
    return stage.GrabWithPopups(
        [&stage] { LumetraEditor::AskToStartAnew(Sample, &stage.GetWindow()); });
}

QImage PlayLost(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.ClickLook(Look);
    return stage.GrabWithPopups([&stage] {
        LumetraEditor::AskToLoseEdit(
            Sample,
            QStringLiteral("/media/card/lake.jpg.lumetra.json: cannot be written: No "
                           "space left on device (error 28)"),
            &stage.GetWindow());
    });
}

QImage PlayShortcuts(EditorOnStage& stage)
{
    stage.OpenSample();
    return WithDialog(stage, stage.FindAction("shortcuts"));
}

QImage PlayAbout(EditorOnStage& stage)
{
    stage.OpenSample();
    return WithDialog(stage, stage.FindAction("about"));
}

} // namespace

const std::vector<Scene>& AllScenes()
{
    static const std::vector<Scene> scenes{
        {QStringLiteral("start"), PlayStart, "light-de@2x"},
        {QStringLiteral("recent"), PlayRecent},
        {QStringLiteral("photo"), PlayPhoto},
        {QStringLiteral("opening"), PlayOpening},
        {QStringLiteral("zoom"), PlayZoom},
        {QStringLiteral("split"), PlaySplit, "light-en@1x"},
        {QStringLiteral("strip"), PlayStrip, "dark-en@1x"},
        {QStringLiteral("small-strip"), PlaySmallStrip},
        {QStringLiteral("many"), PlayMany},
        {QStringLiteral("message"), PlayMessage, "dark-de@1x"},
        {QStringLiteral("look"), PlayLook, "dark-en@1x"},
        {QStringLiteral("hover"), PlayHover, "light-de@1x"},
        {QStringLiteral("focus"), PlayFocus},
        {QStringLiteral("search"), PlaySearch, "light-de@1x"},
        {QStringLiteral("nothing"), PlayNothing},
        {QStringLiteral("none-mine"), PlayNoneOfMine},
        {QStringLiteral("mine"), PlayMine, "dark-de@1x"},
        {QStringLiteral("adjust"), PlayAdjust, "dark-en@1x"},
        {QStringLiteral("curve"), PlayCurve, "light-de@1x"},
        {QStringLiteral("mixer"), PlayMixer},
        {QStringLiteral("grading"), PlayGrading},
        {QStringLiteral("save-look"), PlaySaveLook, "light-en@1x"},
        {QStringLiteral("share"), PlayShare, "light-en@1x"},
        {QStringLiteral("imported"), PlayImported},
        {QStringLiteral("import-menu"), PlayImportMenu},
        {QStringLiteral("menu"), PlayMenu, "light-en@1x"},
        {QStringLiteral("view-menu"), PlayViewMenu},
        {QStringLiteral("tool-tip"), PlayToolTip},
        {QStringLiteral("paste"), PlayPaste},
        {QStringLiteral("export"), PlayExport, "dark-de@1x"},
        {QStringLiteral("export-several"), PlayExportSeveral, "light-de@1x"},
        {QStringLiteral("recipe"), PlayRecipe},
        {QStringLiteral("save"), PlaySave, "light-en@1x"},
        {QStringLiteral("taken"), PlayTaken},
        {QStringLiteral("delete"), PlayDelete},
        {QStringLiteral("leave"), PlayLeave, "dark-en@1x"},
        {QStringLiteral("refused"), PlayRefused},
        {QStringLiteral("kept"), PlayKept},
        {QStringLiteral("replaced"), PlayReplaced},
        {QStringLiteral("lost"), PlayLost},
        {QStringLiteral("shortcuts"), PlayShortcuts, "light-de@1x"},
        {QStringLiteral("about"), PlayAbout, "dark-en@1x"}};
    return scenes;
}

} // namespace LumetraScreenshots
