// SPDX-License-Identifier: GPL-2.0-or-later
// The editor with its presets panel, as a user has them: every step goes through widgets.
#include "editor/EditorFixture.h"
#include "editor/ScriptedAlerts.h"

#include "canvas/PhotoCanvas.h"
#include "export/Exporter.h"
#include "photo/PhotoReader.h"
#include "photo/metadata/EditRecord.h"
#include "settings/EditorSettings.h"
#include "workspace/WorkspaceController.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMouseEvent>
#include <QPushButton>
#include <QSlider>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <gmock/gmock.h>

using namespace LumetraTest;
using testing::HasSubstr;

namespace {

const QString Look = QStringLiteral("Candlelight"); // with extra sliders
const QString OtherLook = QStringLiteral("Fresh");

class LooksTest : public EditorTest
{
protected:
    LooksTest()
    {
        LoadPresetsPanel();
        Open(WritePhoto("lake.png", 600, 400));
        original = GetPicture();
    }

    QSlider* Intensity() const { return Find<QSlider>("intensitySlider"); }
    QSlider* ExtraSlider() const { return Find<QSlider>("extraSlider0"); }
    LumetraHost::Drawer& Drawer() { return editor->GetHost().GetDrawer(); }

    /// A key moves the slider, and the step ends by itself.
    void PressKey(QSlider& slider, Qt::Key key)
    {
        const int steps = editor->GetUndoStack().count();
        QTest::keyClick(&slider, key);
        WaitUntil([&] { return editor->GetUndoStack().count() > steps; });
    }

    static QPoint SliderPlace(const QSlider& slider, double share)
    {
        return {static_cast<int>(slider.width() * share), slider.height() / 2};
    }

    static void SendMouse(QWidget& widget, QEvent::Type type, const QPoint& at,
                          Qt::MouseButtons down)
    {
        QMouseEvent event(type, at, widget.mapToGlobal(at),
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, down,
                          Qt::NoModifier);
        QApplication::sendEvent(&widget, &event);
    }

    QImage original;
};

} // namespace

TEST_F(LooksTest, aClickPutsTheLookOnThePhoto)
{
    ClickLook(Look);

    EXPECT_NE(GetPicture(), original);
    EXPECT_EQ(GetAppliedName(), Look);
    EXPECT_EQ(editor->GetUndoStack().count(), 1);
}

TEST_F(LooksTest, anotherLookReplacesTheFirst)
{
    ClickLook(Look);
    ClickLook(OtherLook);

    EXPECT_EQ(GetAppliedName(), OtherLook);
    EXPECT_EQ(editor->GetPackages().size(), 1U);
}

TEST_F(LooksTest, pointingShowsALookWithoutApplyingIt)
{
    PointAtLook(Look);
    WaitUntil([this] { return editor->GetShownOnTop().has_value(); });
    const QImage shown = GetPicture();
    EXPECT_NE(shown, original);
    EXPECT_TRUE(editor->GetPackages().empty());
    EXPECT_EQ(editor->GetUndoStack().count(), 0);

    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(FindLook(Look).first, &leave);
    EXPECT_EQ(GetPicture(), original);
    ClickLook(Look);

    EXPECT_EQ(GetPicture(), shown) << "what is shown is what is applied";
}

TEST_F(LooksTest, anEditIsSeenWhereverThePointerRests)
{
    ClickLook(OtherLook);
    PointAtLook(Look);
    WaitUntil([this] { return editor->GetShownOnTop().has_value(); });

    PressKey(*Intensity(), Qt::Key_PageDown);

    EXPECT_FALSE(editor->GetShownOnTop());
    const QImage edited = GetPicture();
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(FindLook(Look).first, &leave);
    EXPECT_EQ(GetPicture(), edited);
}

TEST_F(LooksTest, thePhotoFollowsADraggedIntensity)
{
    ClickLook(Look);
    const QImage before = GetPicture();
    QSlider& slider = *Intensity();
    const int value = slider.value();

    SendMouse(slider, QEvent::MouseButtonPress, SliderPlace(slider, 0.5), Qt::LeftButton);
    SendMouse(slider, QEvent::MouseMove, SliderPlace(slider, 0.2), Qt::LeftButton);
    const QImage between = GetPicture();
    SendMouse(slider, QEvent::MouseMove, SliderPlace(slider, 0.1), Qt::LeftButton);
    const QImage last = GetPicture();
    EXPECT_NE(between, before);
    EXPECT_NE(last, between);
    EXPECT_EQ(editor->GetUndoStack().count(), 1) << "the drag has not ended";
    SendMouse(slider, QEvent::MouseButtonRelease, SliderPlace(slider, 0.1), Qt::NoButton);

    EXPECT_EQ(editor->GetUndoStack().count(), 2);
    EXPECT_NE(slider.value(), value);
    FindAction("undo")->trigger();
    EXPECT_EQ(Intensity()->value(), value);
    EXPECT_EQ(GetPicture(), before);
}

TEST_F(LooksTest, anExtraSliderChangesThePhoto)
{
    ClickLook(Look);
    const QImage before = GetPicture();

    PressKey(*ExtraSlider(), Qt::Key_PageUp);

    EXPECT_NE(GetPicture(), before);
    FindAction("undo")->trigger();
    EXPECT_EQ(GetPicture(), before);
}

TEST_F(LooksTest, resetBringsTheLooksOwnValuesBack)
{
    ClickLook(Look);
    const QImage before = GetPicture();
    PressKey(*ExtraSlider(), Qt::Key_PageUp);
    PressKey(*Intensity(), Qt::Key_PageDown);

    Find<QToolButton>("resetButton")->click();

    EXPECT_EQ(GetPicture(), before);
}

TEST_F(LooksTest, discardTakesTheLookOff)
{
    ClickLook(Look);

    Find<QPushButton>("discardButton")->click();

    EXPECT_EQ(GetPicture(), original);
    FindAction("undo")->trigger();
    EXPECT_EQ(GetAppliedName(), Look);
}

TEST_F(LooksTest, anAppliedLookStaysUnderTheNext)
{
    ClickLook(Look);
    const QImage first = GetPicture();
    Find<QPushButton>("applyButton")->click();
    EXPECT_EQ(GetPicture(), first);

    ClickLook(OtherLook);
    const QImage both = GetPicture();
    EXPECT_EQ(editor->GetPackages().size(), 2U);
    Find<QPushButton>("discardButton")->click();

    EXPECT_NE(both, first);
    EXPECT_EQ(GetPicture(), first);
}

TEST_F(LooksTest, stepsGoBackToTheOriginalAndForth)
{
    std::vector<QImage> pictures{original};
    const auto step = [&] { pictures.push_back(GetPicture()); };
    ClickLook(Look);
    step();
    PressKey(*Intensity(), Qt::Key_PageDown);
    step();
    Find<QPushButton>("applyButton")->click();
    step();
    ClickLook(OtherLook);
    step();
    ASSERT_EQ(editor->GetUndoStack().count(), 4);

    for (int i = 3; i >= 0; --i) {
        FindAction("undo")->trigger();
        EXPECT_EQ(GetPicture(), pictures[static_cast<std::size_t>(i)]) << "undo to step " << i;
    }
    for (std::size_t i = 1; i < pictures.size(); ++i) {
        FindAction("redo")->trigger();
        EXPECT_EQ(GetPicture(), pictures[i]) << "redo to step " << i;
    }
}

TEST_F(LooksTest, aChangedLookIsSavedUnderANewName)
{
    ClickLook(Look);
    PressKey(*ExtraSlider(), Qt::Key_PageUp);
    const QImage changed = GetPicture();

    EXPECT_TRUE(NameBy("savePreset", QStringLiteral("My Evening")));

    ASSERT_TRUE(HasLook(QStringLiteral("My Evening")));
    ClickLook(OtherLook);
    ClickLook(QStringLiteral("My Evening"));
    EXPECT_EQ(GetPicture(), changed);
}

TEST_F(LooksTest, aNameIsNotTakenTwice)
{
    ClickLook(Look);
    ASSERT_TRUE(NameBy("savePreset", QStringLiteral("My Evening")));
    ClickLook(Look);
    const ScriptedAlerts alerts({QMessageBox::Ok});

    EXPECT_FALSE(NameBy("savePreset", QStringLiteral("My Evening")));

    EXPECT_THAT(alerts.GetTexts().join(QString()).toStdString(),
                HasSubstr("\"My Evening\" already exists"));
}

TEST_F(LooksTest, aUsersLookIsRenamedAndDeletedAndBroughtBack)
{
    ClickLook(Look);
    ASSERT_TRUE(NameBy("savePreset", QStringLiteral("My Evening")));
    const auto [list, place] = FindLook(QStringLiteral("My Evening"));
    list->setCurrentIndex(place);
    list->setFocus();
    ClickLook(QStringLiteral("My Evening"));

    EXPECT_TRUE(NameBy("renamePreset", QStringLiteral("My Night")));
    EXPECT_FALSE(HasLook(QStringLiteral("My Evening")));
    ASSERT_TRUE(HasLook(QStringLiteral("My Night")));
    {
        const ScriptedAlerts alerts({QMessageBox::Yes});
        FindAction("removePreset")->trigger();
    }
    EXPECT_FALSE(HasLook(QStringLiteral("My Night")));
    FindAction("undo")->trigger();

    EXPECT_TRUE(HasLook(QStringLiteral("My Night")));
}

TEST_F(LooksTest, deletingTheLookOnThePhotoIsOneStep)
{
    const QString name = QStringLiteral("My Evening");
    ClickLook(Look);
    PressKey(*ExtraSlider(), Qt::Key_PageUp);
    ASSERT_TRUE(NameBy("savePreset", name));
    ClickLook(name);
    PressKey(*Intensity(), Qt::Key_PageDown);
    const QImage edited = GetPicture();
    const int intensity = Intensity()->value();
    const int steps = editor->GetUndoStack().count();
    {
        const ScriptedAlerts alerts({QMessageBox::Yes});
        FindAction("removePreset")->trigger();
    }
    EXPECT_FALSE(HasLook(name));
    EXPECT_EQ(GetPicture(), original);
    EXPECT_EQ(editor->GetUndoStack().count(), steps + 1);

    for (int round = 0; round < 2; ++round) {
        FindAction("undo")->trigger();
        EXPECT_TRUE(HasLook(name));
        EXPECT_EQ(GetAppliedName(), name);
        EXPECT_EQ(Intensity()->value(), intensity);
        EXPECT_EQ(GetPicture(), edited);
        FindAction("redo")->trigger();
        EXPECT_FALSE(HasLook(name));
        EXPECT_EQ(GetPicture(), original);
    }
    FindAction("undo")->trigger();
    FindAction("undo")->trigger(); // the step before is that of the intensity
    EXPECT_EQ(GetAppliedName(), name);
    EXPECT_NE(Intensity()->value(), intensity);
}

TEST_F(LooksTest, undoingADeletionIsKeptBesideThePhoto)
{
    const QString name = QStringLiteral("My Evening");
    ClickLook(Look);
    ASSERT_TRUE(NameBy("savePreset", name));
    ClickLook(name);
    {
        const ScriptedAlerts alerts({QMessageBox::Yes});
        FindAction("removePreset")->trigger();
    }
    editor->SaveEdit();
    EXPECT_FALSE(ReadFile("lake.png.lumetra.json").contains("My Evening"));

    FindAction("undo")->trigger();

    editor->SaveEdit();
    EXPECT_TRUE(ReadFile("lake.png.lumetra.json").contains("My Evening"));
}

TEST_F(LooksTest, favouritesAreFound)
{
    ClickLook(Look);
    Find<QToolButton>("favouriteButton")->click();

    Find<QToolButton>("filterButton1")->click();
    EXPECT_TRUE(HasLook(Look));
    EXPECT_FALSE(HasLook(OtherLook));
    Find<QToolButton>("filterButton0")->click();
    EXPECT_TRUE(HasLook(OtherLook));
}

TEST_F(LooksTest, theSearchFindsByName)
{
    QTest::keyClicks(Find<QLineEdit>("searchField"), QStringLiteral("candle"));

    EXPECT_TRUE(HasLook(Look));
    EXPECT_FALSE(HasLook(OtherLook));
}

TEST_F(LooksTest, thePanelWaitsWhileAPhotoIsOpened)
{
    window->OpenPhotos({WritePhoto("other.png", 300, 200)});
    EXPECT_FALSE(Find<QPushButton>("applyButton")->isEnabled());
    EXPECT_FALSE(FindLook(Look).first->isEnabled());
    WaitUntil([this] { return !editor->IsOpening(); });

    EXPECT_TRUE(FindLook(Look).first->isEnabled());
}

TEST_F(LooksTest, looksOfImportedTablesAreThereAfterARestart)
{
    DropFiles({WriteFile("film.cube", "LUT_3D_SIZE 2\n"
                                      "0 0 0\n1 0 0\n0 1 0\n1 1 0\n"
                                      "0 0 1\n1 0 1\n0 1 1\n0.5 0.5 1\n")});
    ClickLook(QStringLiteral("film"));
    const QImage drawn = GetPicture();
    EXPECT_NE(drawn, original);

    Restart();
    LoadPresetsPanel();
    Open(Path("lake.png"));

    EXPECT_TRUE(GetMessage().isEmpty()) << GetMessage().toStdString();
    EXPECT_EQ(GetAppliedName(), QStringLiteral("film"));
    EXPECT_EQ(GetPicture(), drawn);
}

TEST_F(LooksTest, filesWithLooksGoToThePanelHoweverTheyAreOpened)
{
    const auto writeLook = [this](const char* name, const char* stops) {
        return WriteFile(name, QByteArray(R"({ "format": "lumetra-look", "version": 1, "looks": [
            { "name": "Sent )") + stops +
                                   R"(", "effects": [ { "effect": { "id": "exposure",
            "stops": )" + stops + " } } ] } ] }");
    };
    DropFiles({writeLook("dropped.lumetra", "1")});
    EXPECT_TRUE(HasLook(QStringLiteral("Sent 1")));
    EXPECT_THAT(GetMessage().toStdString(), HasSubstr("Sent 1"));

    window->TakeFiles({writeLook("named.lumetra", "2"), Path("lake.png")}); // as at the start
    WaitUntil([this] { return !editor->IsOpening(); });
    EXPECT_TRUE(HasLook(QStringLiteral("Sent 2")));
    ClickLook(QStringLiteral("Sent 2"));
    EXPECT_NE(GetPicture(), original);
}

TEST_F(LooksTest, aTableOfGarbageIsRefused)
{
    QByteArray garbage(5 << 20, '\0');
    for (int i = 0; i < garbage.size(); ++i)
        garbage[i] = static_cast<char>(i * 31 % 251);

    DropFiles({WriteFile("garbage.cube", garbage)});

    EXPECT_THAT(GetMessage().toStdString(), HasSubstr("garbage.cube"));
    EXPECT_FALSE(HasLook(QStringLiteral("garbage")));
    EXPECT_EQ(GetPicture(), original);
}

TEST_F(LooksTest, anExportRecordsTheLooks)
{
    ClickLook(Look);
    PressKey(*Intensity(), Qt::Key_PageDown);
    const int intensity = Intensity()->value();
    Find<QPushButton>("applyButton")->click();
    ClickLook(OtherLook);
    QTimer::singleShot(0, window.get(), [] {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        dialog->findChild<QPushButton*>(QStringLiteral("exportButton"))->click();
    });
    FindAction("exportPhoto")->trigger();
    WaitUntil([this] { return !IsExporting(); });

    const auto photo = LumetraHost::PhotoReader::Read(Path("lake_edited.jpg"));
    const auto records = LumetraHost::EditRecords::Read(photo.metadata.xmp);
    ASSERT_EQ(records.size(), 2U);
    EXPECT_EQ(records[0].preset, Look.toStdString());
    EXPECT_EQ(records[0].intensity, intensity);
    EXPECT_EQ(records[1].preset, OtherLook.toStdString());
    EXPECT_EQ(records[1].intensity, Intensity()->value());
}

TEST_F(LooksTest, areNotedInAFileOnlyWhereTheSettingsNameOne)
{
    const QString file = Path("events.jsonl");
    ClickLook(Look);
    EXPECT_FALSE(QFile::exists(file));
    LumetraEditor::EditorSettings().Set(QStringLiteral("statisticsFile"), file);

    Restart();
    LoadPresetsPanel();
    Open(Path("lake.png"));
    ClickLook(Look);

    EXPECT_THAT(ReadFile("events.jsonl").toStdString(), HasSubstr(Look.toStdString()));
}

TEST_F(LooksTest, everythingIsAsItWasAfterARestart)
{
    ClickLook(Look);
    PressKey(*ExtraSlider(), Qt::Key_PageUp);
    ASSERT_TRUE(NameBy("savePreset", QStringLiteral("My Evening")));
    Find<QPushButton>("applyButton")->click();
    ClickLook(OtherLook);
    PressKey(*Intensity(), Qt::Key_PageDown);
    Find<QToolButton>("favouriteButton")->click();
    const QImage edited = GetPicture();
    const int intensity = Intensity()->value();
    {
        const ScriptedAlerts nothingIsAsked({});
        ASSERT_TRUE(window->close());
    }

    Restart();
    LoadPresetsPanel();
    Open(Path("lake.png"));

    EXPECT_EQ(GetAppliedName(), OtherLook);
    EXPECT_EQ(Intensity()->value(), intensity);
    EXPECT_EQ(GetPicture(), edited);
    EXPECT_TRUE(HasLook(QStringLiteral("My Evening")));
    EXPECT_TRUE(Find<QToolButton>("favouriteButton")->isChecked());
    EXPECT_TRUE(GetMessage().isEmpty()) << GetMessage().toStdString();
}
