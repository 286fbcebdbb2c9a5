// SPDX-License-Identifier: GPL-2.0-or-later
#include "DialogScenes.h"

#include "EditorOnStage.h"
#include "SceneParts.h"

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
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

#include <functional>
#include <map>

namespace LumetraScreenshots {
namespace {

QImage WithDialog(EditorOnStage& stage, QAction& command, const std::function<void()>& work = {})
{
    return stage.GrabWithPopups([&command] { command.trigger(); }, {}, work);
}

constexpr char Faded[] =
    "<rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\"><rdf:Description "
    "xmlns:crs=\"http://ns.adobe.com/camera-raw-settings/1.0/\" crs:Exposure2012=\"+0.25\" "
    "crs:Contrast2012=\"-22\" crs:Vibrance=\"-14\" crs:GrainAmount=\"31\" "
    "crs:LuminanceSmoothing=\"25\" crs:LensProfileEnable=\"1\"/></rdf:RDF>";

/// Selects photos of which one is none, presses Export as soon as the dialog has its plan, and
/// returns the picture when the button of that name shows.
QImage ExportSelection(EditorOnStage& stage, const char* shownButton)
{
    stage.GetWindow().resize(1366, 768);
    stage.OpenFolder();
    Press(*stage.GetWindow().findChild<LumetraEditor::PhotoStrip*>(), Qt::Key_Right,
          Qt::ShiftModifier, 23);
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &stage.GetWindow(), [&] {
        auto* const button =
            stage.GetWindow().findChild<QPushButton*>(QStringLiteral("selectionExport"));
        if (!button || !button->isEnabled())
            return;
        look.stop();
        button->click();
    });
    look.start();
    return stage.GrabWhenShown(shownButton,
                               [&stage] { stage.FindAction("exportSeveral").trigger(); });
}

} // namespace

QImage DialogScenes::PlayPaste(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.ClickLook(Look);
    stage.FindAction("copyEdit").trigger();
    return WithDialog(stage, stage.FindAction("pasteParts"));
}

QImage DialogScenes::PlayExport(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.ClickLook(Look);
    return WithDialog(stage, stage.FindAction("exportPhoto"));
}

QImage DialogScenes::PlayExportSeveral(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.ClickLook(Look);
    return WithDialog(stage, stage.FindAction("exportSeveral"));
}

QImage DialogScenes::PlayExporting(EditorOnStage& stage)
{
    return ExportSelection(stage, "selectionCancel");
}

QImage DialogScenes::PlayExported(EditorOnStage& stage)
{
    return ExportSelection(stage, "selectionClose");
}

QImage DialogScenes::PlayRecipe(EditorOnStage& stage)
{
    stage.OpenSample();
    return WithDialog(stage, stage.FindAction("exportSeveral"), [] {
        QApplication::activeModalWidget()
            ->findChild<QPushButton*>(QStringLiteral("recipeEdit"))
            ->click();
    });
}

QImage DialogScenes::PlaySave(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.ClickLook(Look);
    return WithDialog(stage, stage.Find<QAction>("savePreset"));
}

QImage DialogScenes::PlaySaveLook(EditorOnStage& stage)
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
QImage DialogScenes::PlayShare(EditorOnStage& stage)
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

/// A folder of other programs' looks has come in.
QImage DialogScenes::PlayImported(EditorOnStage& stage)
{
    stage.OpenSample();
    const QString folder =
        stage.WriteFiles({{QStringLiteral("Faded Film.xmp"), Faded},
                          {QStringLiteral("Print Sizes.lrtemplate"), "s = { type = \"Export\" }"}});
    stage.DropOnPanel(folder); // the window that tells of it stays
    return stage.GrabWithPopups([] {});
}

/// So many looks come in that it takes a while.
QImage DialogScenes::PlayImporting(EditorOnStage& stage)
{
    constexpr int Looks = 4000;
    stage.OpenSample();
    std::map<QString, QByteArray> files;
    for (int i = 1; i <= Looks; ++i)
        files[QStringLiteral("Film %1.xmp").arg(i, 4, 10, QLatin1Char('0'))] = Faded;
    const QString folder = stage.WriteFiles(files);
    return stage.GrabWhenShown("workProgress", [&] { stage.DropOnPanel(folder); });
}

QImage DialogScenes::PlayImportMenu(EditorOnStage& stage)
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
QImage DialogScenes::PlayTaken(EditorOnStage& stage)
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

QImage DialogScenes::PlayDelete(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.ClickLook(Look);
    stage.SaveLook(OwnLook);
    stage.ClickLook(OwnLook);
    return WithDialog(stage, stage.Find<QAction>("removePreset"));
}

/// The photo itself was chosen as the output.
QImage DialogScenes::PlayRefused(EditorOnStage& stage)
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
QImage DialogScenes::PlayKept(EditorOnStage& stage)
{
    stage.OpenSample();
    QDir().mkpath(stage.GetWindow().windowFilePath() + QStringLiteral(".lumetra.json"));
    stage.ClickLook(Look);
    while (stage.GetWindow().findChild<LumetraEditor::MessageBar*>()->GetText().isEmpty())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return stage.Grab();
}

QImage DialogScenes::PlayReplaced(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.ClickLook(Look);
    return stage.GrabWithPopups(
        [&stage] { LumetraEditor::AskToStartAnew(Sample, &stage.GetWindow()); });
}

QImage DialogScenes::PlayLost(EditorOnStage& stage)
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

QImage DialogScenes::PlayShortcuts(EditorOnStage& stage)
{
    stage.OpenSample();
    return WithDialog(stage, stage.FindAction("shortcuts"));
}

QImage DialogScenes::PlayModules(EditorOnStage& stage)
{
    stage.OpenSample();
    return WithDialog(stage, stage.FindAction("modules"));
}

QImage DialogScenes::PlayAbout(EditorOnStage& stage)
{
    stage.OpenSample();
    return WithDialog(stage, stage.FindAction("about"));
}

} // namespace LumetraScreenshots
