// SPDX-License-Identifier: GPL-2.0-or-later
#include "editor/EditorFixture.h"
#include "editor/ScriptedAlerts.h"
#include "host/drawer/DrawnPicture.h"

#include "Zorvik/Proc/SettingsEffectEmpty.h"
#include "Zorvik/Quindle/EffectSettingsImpl.h"
#include "workspace/WorkspaceController.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSlider>
#include <QTest>

#include <gmock/gmock.h>

using namespace LumetraTest;
using testing::HasSubstr;

namespace {

/// The example panel stands for any: one slider, one package.
class EditTest : public EditorTest
{
protected:
    EditTest()
    {
        LoadExamplePanel();
        Open(WritePhoto("lake.png", 80, 60));
    }

    QSlider* Slider() const { return Find<QSlider>("exposureSlider"); }
    LumetraHost::Drawer& Drawer() { return editor->GetHost().GetDrawer(); }

    QByteArray KeptEdit()
    {
        editor->SaveEdit();
        return ReadFile("lake.png.lumetra.json");
    }

    void Commit()
    {
        const auto empty =
            Zorvik::Quindle::EffectSettingsImpl::Create(Zorvik::Proc::SettingsEffectEmpty());
        Drawer().ApplyEffect(Zorvik::Quindle::ConstEffectPtr(empty), {});
        const QSignalBlocker blocker(Slider());
        Slider()->setValue(0);
        editor->NoteEdit(QStringLiteral("Apply"));
    }

    /// The red of the drawer's picture in its middle.
    int Red() { return LumetraHost::DrawWhole(Drawer()).Row(30)[4 * 40]; }

    void Restart()
    {
        editor->SaveEdit();
        EditorTest::Restart();
        LoadExamplePanel();
    }
};

} // namespace

TEST_F(EditTest, undoesAndRedoesAStep)
{
    const int original = Red();
    Slider()->setValue(10);
    const int lighter = Red();
    ASSERT_NE(lighter, original);

    FindAction("undo")->trigger();
    EXPECT_EQ(Slider()->value(), 0);
    EXPECT_EQ(Red(), original);
    EXPECT_FALSE(FindAction("undo")->isEnabled());
    FindAction("redo")->trigger();

    EXPECT_EQ(Slider()->value(), 10);
    EXPECT_EQ(Red(), lighter);
}

TEST_F(EditTest, namesTheStepInTheMenu)
{
    Slider()->setValue(10);

    EXPECT_THAT(FindAction("undo")->text().toStdString(), HasSubstr("Exposure"));
}

TEST_F(EditTest, takesADragForOneStep)
{
    Slider()->setSliderDown(true);
    for (int value = 1; value <= 10; ++value)
        Slider()->setSliderPosition(value);
    Slider()->setSliderDown(false);

    EXPECT_EQ(editor->GetUndoStack().count(), 1);
    FindAction("undo")->trigger();
    EXPECT_EQ(Slider()->value(), 0);
}

TEST_F(EditTest, takenInTheMiddleOfADragHasItsValuesInTheLayerToo)
{
    LoadPresetsPanel();
    ClickLook(QStringLiteral("Candlelight"));
    auto* const intensity = Find<QSlider>("intensitySlider");
    intensity->setSliderDown(true);
    intensity->setSliderPosition(intensity->value() / 2);

    const auto taken = editor->GetEdit();
    const auto exported = editor->GetPackages();
    intensity->setSliderDown(false);

    const auto finished = editor->GetEdit();
    ASSERT_EQ(taken.layers.size(), 1u);
    EXPECT_TRUE(taken == finished);
    EXPECT_EQ(taken.layers[0].record.intensity, finished.layers[0].record.intensity);
    ASSERT_EQ(exported.size(), 1u);
    EXPECT_TRUE(LumetraHost::IsSamePackage(exported[0], *finished.layers[0].settings));
}

TEST_F(EditTest, takesNoStepForNoChange)
{
    editor->NoteEdit(QStringLiteral("Nothing"));

    EXPECT_EQ(editor->GetUndoStack().count(), 0);
}

TEST_F(EditTest, undoesAcrossACommit)
{
    const int original = Red();
    Slider()->setValue(10);
    const int lighter = Red();
    Commit();
    Slider()->setValue(-5);
    const int both = Red();

    FindAction("undo")->trigger();
    EXPECT_EQ(Red(), lighter);
    FindAction("undo")->trigger();
    EXPECT_TRUE(Drawer().GetCommittedPackages().empty());
    EXPECT_EQ(Slider()->value(), 10);
    FindAction("undo")->trigger();
    EXPECT_EQ(Red(), original);
    for (int i = 0; i < 3; ++i)
        FindAction("redo")->trigger();

    EXPECT_EQ(Drawer().GetCommittedPackages().size(), 1U);
    EXPECT_EQ(Red(), both);
}

TEST_F(EditTest, forgetsTheStepsOfAnotherPhoto)
{
    Slider()->setValue(10);

    Open(WritePhoto("other.png", 40, 30));

    EXPECT_FALSE(FindAction("undo")->isEnabled());
    EXPECT_EQ(Slider()->value(), 0);
}

TEST_F(EditTest, keepsTheEditBesideThePhoto)
{
    EXPECT_FALSE(QFile::exists(Path("lake.png.lumetra.json"))) << "nothing has been edited";

    Slider()->setValue(10);

    EXPECT_THAT(KeptEdit().toStdString(), HasSubstr("lumetra-sidecar"));
    EXPECT_THAT(KeptEdit().toStdString(), HasSubstr("\"tenthsOfStops\": 10"));
}

TEST_F(EditTest, bringsTheEditBackAfterARestart)
{
    Slider()->setValue(10);
    Commit();
    Slider()->setValue(-5);
    const int edited = Red();

    Restart();
    Open(Path("lake.png"));

    EXPECT_EQ(Slider()->value(), -5);
    EXPECT_EQ(Drawer().GetCommittedPackages().size(), 1U);
    EXPECT_EQ(Red(), edited);
    EXPECT_FALSE(FindAction("undo")->isEnabled());
}

TEST_F(EditTest, bringsTheEditBackWhenReturningToAPhoto)
{
    Slider()->setValue(10);
    Open(WritePhoto("other.png", 40, 30));

    Open(Path("lake.png"));

    EXPECT_EQ(Slider()->value(), 10);
}

TEST_F(EditTest, keepsAnUndoneStepAsUndone)
{
    Slider()->setValue(10);
    FindAction("undo")->trigger();

    Restart();
    Open(Path("lake.png"));

    EXPECT_EQ(Slider()->value(), 0);
}

TEST_F(EditTest, keepsTheEditsOfMissingPanels)
{
    WriteFile("lake.png.lumetra.json", R"({"format": "lumetra-sidecar", "version": 1,
        "panels": {"from-elsewhere": {"strength": 7}}})");
    Open(Path("lake.png"));

    Slider()->setValue(10);

    EXPECT_THAT(KeptEdit().toStdString(), HasSubstr("\"tenthsOfStops\": 10"));
    EXPECT_THAT(KeptEdit().toStdString(), HasSubstr("\"strength\": 7"));
}

TEST_F(EditTest, leavesAnUnreadableSidecarAloneUntilTheNextStep)
{
    const QByteArray broken = R"({"format": "lumetra-sidecar", "version": 1, "committed": 3})";
    WriteFile("lake.png.lumetra.json", broken);

    Open(Path("lake.png"));
    EXPECT_THAT(GetMessage().toStdString(), HasSubstr("lake.png.lumetra.json"));
    EXPECT_THAT(GetMessage().toStdString(), HasSubstr("committed"));
    EXPECT_EQ(ReadFile("lake.png.lumetra.json"), broken);
    Slider()->setValue(10);
    EXPECT_THAT(KeptEdit().toStdString(), HasSubstr("\"tenthsOfStops\": 10"));

    const QStringList aside = QDir(Path(".")).entryList({QStringLiteral("*.unreadable-*")});
    ASSERT_EQ(aside.size(), 1);
    EXPECT_EQ(ReadFile(qPrintable(aside[0])), broken);
}

TEST_F(EditTest, opensNoSidecarOfANewerVersion)
{
    WriteFile("lake.png.lumetra.json", R"({"format": "lumetra-sidecar", "version": 5})");

    Open(Path("lake.png"));

    EXPECT_THAT(GetMessage().toStdString(), HasSubstr("a version up to 4, found 5"));
}

TEST_F(EditTest, reportsAPanelsPartThatMakesNoSense)
{
    WriteFile("lake.png.lumetra.json", R"({"format": "lumetra-sidecar", "version": 1,
        "panels": {"exposure-panel": {"tenthsOfStops": "many"}}})");

    Open(Path("lake.png"));

    EXPECT_THAT(GetMessage().toStdString(),
                HasSubstr("tenthsOfStops: expected number, found string"));
    EXPECT_EQ(Slider()->value(), 0);
}

TEST_F(EditTest, saysOnceThatTheEditCannotBeKept)
{
    ASSERT_TRUE(QDir().mkpath(Path("lake.png.lumetra.json"))); // a folder in its place
    ASSERT_TRUE(QDir().mkpath(Path("data/lumetra")));
    WriteFile("data/lumetra/edits", "a file in the folder's place");
    Slider()->setValue(10);
    editor->SaveEdit();
    WaitUntil([this] { return !GetMessage().isEmpty(); });
    EXPECT_THAT(GetMessage().toStdString(), HasSubstr("lake.png.lumetra.json"));
}

TEST_F(EditTest, quittingAsksNothingAndKeepsWhatIsOpen)
{
    Slider()->setValue(10);
    const ScriptedAlerts alerts({});

    EXPECT_TRUE(window->close());

    EXPECT_THAT(ReadFile("lake.png.lumetra.json").toStdString(),
                HasSubstr("\"tenthsOfStops\": 10"));
}

TEST_F(EditTest, quittingAsksWhereTheEditCanBeKeptNowhere)
{
    ASSERT_TRUE(QDir().mkpath(Path("lake.png.lumetra.json"))); // a folder in its place
    ASSERT_TRUE(QDir().mkpath(Path("data/lumetra")));
    WriteFile("data/lumetra/edits", "a file in the folder's place");
    Slider()->setValue(10);
    const ScriptedAlerts alerts({QMessageBox::Cancel});

    EXPECT_FALSE(window->close());

    EXPECT_TRUE(window->isVisible());
    EXPECT_THAT(alerts.GetTexts().join(QString()).toStdString(), HasSubstr("lake.png"));
}
