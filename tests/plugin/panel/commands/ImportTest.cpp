// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/PresetImport.h"

#include "PanelFixture.h"
#include "core/PresetCollection.h"
#include "editor/ScriptedAlerts.h"
#include "engine/effects/lut3d/Lut3dSettings.h"
#include "lut/LookExport.h"
#include "lut/LutReader.h"
#include "panel/grid/PresetGrid.h"
#include "panel/grid/PresetPageModel.h"
#include "support/StoredForm.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QFileDialog>
#include <QMimeData>
#include <QSlider>
#include <QTimer>
#include <QUrl>

using LumetraHost::LutReader;
using LumetraPlugin::PresetImport;
using LumetraPlugin::PresetModel;
using LumetraTest::PanelFixture;
using LumetraTest::ScriptedAlerts;

namespace {

/// A table that swaps red and blue.
constexpr char Swap[] = "TITLE \"swap\"\nLUT_3D_SIZE 2\n"
                        "0 0 0\n0 0 1\n0 1 0\n0 1 1\n1 0 0\n1 0 1\n1 1 0\n1 1 1\n";

constexpr char Others[] = R"({"format": "lumetra-catalogue", "version": 1, "groups": [
  {"name": "Others", "items": [
    {"name": "Dusk", "id": "others.dusk", "effects": [{"effect": {"id": "exposure", "stops": -1}}]},
    {"name": "Broken", "id": "others.broken", "effects": [{"effect": {"id": "nothing"}}]}]}]})";

class ImportTest : public PanelFixture
{
protected:
    QString Write(const char* name, const char* text)
    {
        QFile file(folder.filePath(QLatin1String(name)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        return file.fileName();
    }
    /// False when the panel does not take the files.
    bool Drop(const QStringList& paths)
    {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& path : paths)
            urls.append(QUrl::fromLocalFile(path));
        data.setUrls(urls);
        QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton,
                              Qt::NoModifier);
        enter.ignore();
        QApplication::sendEvent(panel->GetWidget(), &enter);
        if (!enter.isAccepted())
            return false;
        QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(panel->GetWidget(), &drop);
        return true;
    }
    void Answer(const QString& path)
    {
        QTimer::singleShot(0, [path] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            dialog->selectFile(path);
            QMetaObject::invokeMethod(dialog, "accept");
        });
    }
    /// A catalogue with another look of a name that Others has.
    QString WriteOtherDusk(const char* name)
    {
        return Write(name, QByteArray(Others).replace("\"stops\": -1", "\"stops\": -2"));
    }
    void RemoveBackups()
    {
        for (int i = 1; i <= 5; ++i)
            QFile::remove(files.store + QStringLiteral(".backup-%1").arg(i));
    }
    QString ReadText(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }
};

} // namespace

TEST_F(ImportTest, aDroppedTableBecomesAPresetOfTheUser)
{
    ASSERT_TRUE(Drop({Write("swap.cube", Swap)}));

    ASSERT_EQ(Shown(UserPage).size(), 1);
    EXPECT_TRUE(StoreText().contains(QStringLiteral("lut3d")));
    Click(qPrintable(Shown(UserPage).front()));
    const auto picture = editor.GetResult();
    EXPECT_EQ(picture.Row(0)[0], photo.Row(0)[2]);
    EXPECT_EQ(picture.Row(0)[2], photo.Row(0)[0]);
}

TEST_F(ImportTest, aDroppedTableIsThereAfterARestart)
{
    Drop({Write("swap.cube", Swap)});
    const QStringList names = Shown(UserPage);
    Restart();

    EXPECT_EQ(Shown(UserPage), names);
}

TEST_F(ImportTest, saysWhatIsWrongWithGarbageAndAddsNothing)
{
    const QString cube = Write("broken.cube", "LUT_3D_SIZE 2\n0 0 0\n");
    const QString json = Write("broken.json", "{]");
    ASSERT_TRUE(Drop({cube, json}));

    EXPECT_EQ(Shown(UserPage), QStringList());
    EXPECT_EQ(StoreText(), QString());
    ASSERT_EQ(editor.messages.size(), 2);
    EXPECT_TRUE(editor.messages[0].startsWith(cube));
    EXPECT_TRUE(editor.messages[1].startsWith(json));
}

TEST_F(ImportTest, doesNotTakeFilesThatHoldNoLooks)
{
    EXPECT_FALSE(Drop({Write("notes.txt", "hello")}));
}

TEST_F(ImportTest, takesTheGoodPresetsOfACatalogueAndTellsTheOthers)
{
    ASSERT_TRUE(Drop({Write("others.json", Others)}));

    EXPECT_EQ(Shown(UserPage), QStringList{QStringLiteral("Dusk")});
    ASSERT_EQ(editor.messages.size(), 2); // one for the broken file, one for the imported looks
    EXPECT_TRUE(editor.messages[0].contains(QStringLiteral("nothing")));
    Click("Dusk");
    EXPECT_EQ(Find<QSlider>("extraSlider0").value(), -50); // with this program's sliders
}

TEST_F(ImportTest, numbersNamesThatTheUserHas)
{
    Drop({Write("others.json", Others)});
    const ScriptedAlerts alerts({QMessageBox::Yes});
    Drop({WriteOtherDusk("other-dusk.json")});

    EXPECT_EQ(Shown(UserPage), (QStringList{QStringLiteral("Dusk"), QStringLiteral("Dusk 2")}));
    EXPECT_NE(Named("Dusk").data(PresetModel::PresetIdRole),
              Named("Dusk 2").data(PresetModel::PresetIdRole));
}

TEST_F(ImportTest, takesAnotherUsersPresets)
{
    Drop({Write("others.json", Others)});
    const QString copy = folder.filePath(QStringLiteral("copy.json"));
    ASSERT_TRUE(QFile::rename(files.store, copy));
    RemoveBackups();
    Restart();
    ASSERT_EQ(Shown(UserPage), QStringList());

    Drop({copy});

    EXPECT_EQ(Shown(UserPage), QStringList{QStringLiteral("Dusk")});
}

TEST_F(ImportTest, saysOfPresetsThatAreHereAlreadyThatTheyAre)
{
    const QString path = Write("others.json", Others);
    Drop({path});
    const QString copy = folder.filePath(QStringLiteral("copy.json"));
    ASSERT_TRUE(QFile::copy(files.store, copy));
    editor.messages.clear();

    Drop({copy});

    EXPECT_EQ(Shown(UserPage), QStringList{QStringLiteral("Dusk")});
    EXPECT_EQ(editor.messages, QStringList{QStringLiteral("“Dusk” is here already, as “Dusk”.")});
}

TEST_F(ImportTest, theImportButtonAsksForFiles)
{
    Answer(Write("others.json", Others));
    Find<QAbstractButton>("importButton").click();

    EXPECT_EQ(Shown(UserPage), QStringList{QStringLiteral("Dusk")});
}

TEST_F(ImportTest, exportsALookAtItsIntensity)
{
    Click("Bright");
    Drag("intensitySlider", {1}); // the photo itself
    const QString path = folder.filePath(QStringLiteral("bright.cube"));
    Answer(path);
    Trigger("exportPreset");

    const QString text = ReadText(path);
    EXPECT_TRUE(text.contains(QStringLiteral("LUT_3D_SIZE 33")));
    EXPECT_TRUE(text.contains(QStringLiteral("TITLE \"Bright\"")));
    // Red runs fastest: the second point of the whole table is 1/32 of red.
    const QStringList lines = text.trimmed().split(QLatin1Char('\n'));
    const int first = lines.size() - 33 * 33 * 33;
    ASSERT_GT(first, 0);
    EXPECT_NEAR(lines[first + 1].section(QLatin1Char(' '), 0, 0).toDouble(), 1.0 / 32, 1e-4);
    ASSERT_EQ(editor.messages.size(), 1);
    EXPECT_TRUE(editor.messages.front().contains(path));
}

TEST_F(ImportTest, exportsALookInTheFormatThatTheNameAnnounces)
{
    Click("Bright");
    const auto look = Model().GetPreset(Named("Bright"))->MakeSettings();
    for (const auto& [name, size] :
         {std::pair{"bright.clf", 33}, std::pair{"bright.png", 64}, std::pair{"bright.tif", 64}}) {
        const QString path = folder.filePath(QLatin1String(name));
        Answer(path);
        Trigger("exportPreset");
        const auto looks = LutReader::Read(path);
        ASSERT_EQ(looks.size(), 1u) << name;
        const auto table =
            dynamic_cast<const LumetraHost::Lut3dSettings&>(*looks.front().effect).GetCube();
        const auto wanted = LumetraHost::LookExport::MakeTable(look, size);
        ASSERT_TRUE(table) << name;
        ASSERT_EQ(table->values.size(), wanted.values.size()) << name;
        for (std::size_t i = 0; i < wanted.values.size(); ++i)
            ASSERT_NEAR(table->values[i], wanted.values[i], 1.0 / 65535) << name << ' ' << i;
    }
}

TEST_F(ImportTest, aNameThatAnnouncesNoTableIsRefused)
{
    const QString path = folder.filePath(QStringLiteral("bright.3dl"));
    Click("Bright");
    Answer(path);
    Trigger("exportPreset");
    EXPECT_FALSE(QFile::exists(path));
    ASSERT_EQ(editor.messages.size(), 1);
    EXPECT_TRUE(editor.messages.front().contains(QStringLiteral("expected a name that ends in")));
}

TEST_F(ImportTest, anotherFormatInTheDialogProposesAnotherName)
{
    Click("Bright");
    QStringList proposed;
    QTimer::singleShot(0, [&proposed] {
        auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        for (const QString& filter : dialog->nameFilters()) {
            emit dialog->filterSelected(filter);
            proposed.append(QFileInfo(dialog->selectedFiles().value(0)).fileName());
        }
        dialog->reject();
    });
    Trigger("exportPreset");
    EXPECT_EQ(proposed, (QStringList{QStringLiteral("Bright.cube"), QStringLiteral("Bright.clf"),
                                     QStringLiteral("Bright.png")}));
}

TEST_F(ImportTest, exportsTheColoursAloneAndNamesWhatIsLeftOut)
{
    Drop({Write("framed.json", R"({"format": "lumetra-catalogue", "version": 1, "groups": [
      {"name": "Edges", "items": [{"name": "Framed", "id": "framed",
        "effects": [{"effect": {"id": "exposure", "stops": 1}},
                    {"effect": {"id": "vignette", "amount": -2}},
                    {"effect": {"id": "grain", "amount": 20}}]}]}]})")});
    editor.messages.clear();
    Click("Framed");
    const QString path = folder.filePath(QStringLiteral("framed.cube"));
    {
        const ScriptedAlerts alerts({QMessageBox::Cancel});
        Trigger("exportPreset");
        EXPECT_TRUE(alerts.GetTexts().front().contains(QStringLiteral("Vignette, Grain")))
            << alerts.GetTexts().front().toStdString();
        EXPECT_EQ(alerts.GetTitles().front(), QStringLiteral("Colours Only"));
    }
    EXPECT_FALSE(QFile::exists(path));
    EXPECT_TRUE(editor.messages.isEmpty());

    const ScriptedAlerts alerts({QMessageBox::Yes});
    Answer(path);
    Trigger("exportPreset");

    EXPECT_EQ(LutReader::Read(path).size(), 1u);
    ASSERT_EQ(editor.messages.size(), 1);
    EXPECT_TRUE(editor.messages.front().endsWith(QStringLiteral("Left out: Vignette, Grain")))
        << editor.messages.front().toStdString();
}

TEST_F(ImportTest, refusesToExportWhatIsNotColourAlone)
{
    Drop({Write("edges.json", R"({"format": "lumetra-catalogue", "version": 1, "groups": [
      {"name": "Edges", "items": [{"name": "Dark Edges", "id": "edges",
        "effects": [{"effect": {"id": "vignette", "amount": -2}}]}]}]})")});
    editor.messages.clear();
    Click("Dark Edges");
    Trigger("exportPreset"); // no dialog that would wait for ever

    ASSERT_EQ(editor.messages.size(), 1);
    EXPECT_TRUE(editor.messages.front().contains(QStringLiteral("Vignette")));
}

namespace {

/// The folder with the tables of the store at `path`.
QDir TablesOf(const QString& path)
{
    return QDir(path + QStringLiteral(".tables"));
}

} // namespace

TEST_F(ImportTest, aDroppedTableStandsBesideTheStore)
{
    Drop({Write("swap.cube", Swap)});
    EXPECT_EQ(TablesOf(files.store).entryList(QDir::Files).size(), 1);
    EXPECT_FALSE(StoreText().contains(QStringLiteral("data")));
}

TEST_F(ImportTest, anEditWithATableNeedsNoTableFile)
{
    Drop({Write("swap.cube", Swap)});
    Restart();
    Click("swap");
    const auto picture = editor.GetResult();
    const auto edit = panel->SaveEdit();
    Find<QAbstractButton>("discardButton").click();
    ASSERT_TRUE(TablesOf(files.store).removeRecursively());
    Restart();

    panel->RestoreEdit(edit);

    EXPECT_TRUE(HaveSamePixels(editor.GetResult(), picture));
    EXPECT_EQ(LumetraTest::StoredText(*panel->SaveEdit()), LumetraTest::StoredText(*edit));
}

TEST_F(ImportTest, aPresetWithoutItsTableIsMarkedAndNotApplied)
{
    Drop({Write("swap.cube", Swap)});
    ASSERT_TRUE(TablesOf(files.store).removeRecursively());
    Restart();
    EXPECT_EQ(Shown(UserPage), QStringList{QStringLiteral("swap")});
    const QModelIndex row = Grid(UserPage).GetPresets().index(0);
    EXPECT_TRUE(row.data(Qt::AccessibleDescriptionRole)
                    .toString()
                    .contains(QStringLiteral("a file that it needs is missing")));
    editor.messages.clear();

    Click("swap");

    EXPECT_FALSE(IsApplied("swap"));
    EXPECT_TRUE(HaveSamePixels(editor.GetResult(), photo));
    ASSERT_EQ(editor.messages.size(), 1);
    EXPECT_TRUE(editor.messages.front().contains(QStringLiteral("expected a file of 48 bytes")))
        << editor.messages.front().toStdString();
    EXPECT_TRUE(StoreText().contains(QStringLiteral("sha256")));
}

TEST_F(ImportTest, takesTheOthersOfAStoreThatWasCopiedWithoutItsTables)
{
    Drop({Write("others.json", Others), Write("swap.cube", Swap)});
    const QString copy = folder.filePath(QStringLiteral("copy.json"));
    ASSERT_TRUE(QFile::rename(files.store, copy));
    RemoveBackups();
    Restart();
    editor.messages.clear();

    Drop({copy});

    EXPECT_EQ(Shown(UserPage), QStringList{QStringLiteral("Dusk")});
    ASSERT_EQ(editor.messages.size(), 2);
    EXPECT_TRUE(editor.messages[0].contains(QStringLiteral("\"swap\" cannot be used")));
}

TEST_F(ImportTest, takesTablesFromBesideAnotherUsersPresets)
{
    Drop({Write("swap.cube", Swap)});
    const QString copy = folder.filePath(QStringLiteral("copy.json"));
    ASSERT_TRUE(QFile::rename(files.store, copy));
    ASSERT_TRUE(QDir().rename(TablesOf(files.store).path(), TablesOf(copy).path()));
    RemoveBackups();
    Restart();
    ASSERT_EQ(Shown(UserPage), QStringList());

    Drop({copy});
    ASSERT_TRUE(TablesOf(copy).removeRecursively());
    Restart();

    Click("swap");
    EXPECT_EQ(editor.GetResult().Row(0)[0], photo.Row(0)[2]);
}
