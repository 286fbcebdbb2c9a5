// SPDX-License-Identifier: GPL-2.0-or-later
// The layers of an edit, drawn by two modules.
#include "editor/EditorFixture.h"
#include "host/drawer/DrawnPicture.h"

#include "edits/EditFile.h"
#include "export/ExportJob.h"
#include "layers/LayerSteps.h"
#include "photo/PhotoReader.h"
#include "workspace/WorkspaceController.h"

#include <QAction>
#include <QApplication>
#include <QPushButton>
#include <QSlider>
#include <QUndoStack>

#include <gmock/gmock.h>

#include <functional>
#include <string>
#include <vector>

using namespace LumetraTest;
using LumetraHost::DrawWhole;
using LumetraHost::EditLayer;
using LumetraHost::HaveSamePixels;
using LumetraHost::Image;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

const QString Look = QStringLiteral("Candlelight");
const QString OtherLook = QStringLiteral("Fresh");
constexpr char Exposure[] = "exposure-panel";
constexpr char Looks[] = "lumetra-presets";

class LayersTest : public EditorTest
{
protected:
    LayersTest()
    {
        LoadBoth();
        Open(WritePhoto("lake.png", 80, 60));
        original = Draw();
    }

    void LoadBoth()
    {
        LoadExamplePanel();
        LoadPresetsPanel();
    }
    QSlider* Slider() const { return Find<QSlider>("exposureSlider"); }
    LumetraHost::Drawer& Drawer() const { return editor->GetHost().GetDrawer(); }
    Image Draw() const { return DrawWhole(Drawer()); }
    void ApplyForGood() const { Find<QPushButton>("applyButton")->click(); }

    /// The layers, bottom first, as "MODULE", with a minus before it when it is off and an asterisk
    /// behind it when it is open.
    std::vector<std::string> GetLayers() const
    {
        std::vector<std::string> texts;
        for (const EditLayer& layer : editor->CaptureLayers())
            texts.push_back((layer.isOn ? "" : "-") + layer.module.toStdString() +
                            (layer.isOpen ? "*" : ""));
        return texts;
    }

    QByteArray KeptEdit() const
    {
        editor->SaveEdit();
        return ReadFile("lake.png.lumetra.json");
    }

    void RestartWithoutPanels()
    {
        editor->SaveEdit();
        Restart();
    }
    void Reopen()
    {
        RestartWithoutPanels();
        LoadBoth();
        Open(Path("lake.png"));
        EXPECT_EQ(GetMessage(), QString());
    }
    void ExpectSameAfterReopening()
    {
        const auto layers = GetLayers();
        const Image picture = Draw();
        Reopen();
        EXPECT_EQ(GetLayers(), layers);
        EXPECT_TRUE(HaveSamePixels(Draw(), picture));
    }

    Image original;
};

} // namespace

TEST_F(LayersTest, knowTheirModules)
{
    ClickLook(Look);
    Slider()->setValue(10);

    EXPECT_THAT(GetLayers(), ElementsAre("lumetra-presets*", "exposure-panel*"));
    ApplyForGood();
    EXPECT_THAT(GetLayers(), ElementsAre(Looks, Exposure));
    EXPECT_EQ(editor->CaptureLayers()[0].record.preset, Look.toStdString());
}

TEST_F(LayersTest, keepTheirOrderWhenTheFirstPanelIsBelow)
{
    Slider()->setValue(10);
    ClickLook(Look);
    ASSERT_THAT(GetLayers(), ElementsAre("exposure-panel*", "lumetra-presets*"));

    ExpectSameAfterReopening();
}

TEST_F(LayersTest, keepTheirOrderWhenTheFirstPanelIsAbove)
{
    ClickLook(Look);
    Slider()->setValue(10);
    ASSERT_THAT(GetLayers(), ElementsAre("lumetra-presets*", "exposure-panel*"));

    ExpectSameAfterReopening();

    EXPECT_EQ(GetAppliedName(), Look);
    EXPECT_EQ(Slider()->value(), 10);
}

TEST_F(LayersTest, keepTheirOrderAboveCommittedOnes)
{
    ClickLook(OtherLook);
    ApplyForGood();
    ClickLook(Look);
    Slider()->setValue(-5);
    ASSERT_THAT(GetLayers(), ElementsAre(Looks, "lumetra-presets*", "exposure-panel*"));

    ExpectSameAfterReopening();
    ApplyForGood();
    Slider()->setValue(8);
    ClickLook(OtherLook);

    EXPECT_THAT(GetLayers(),
                ElementsAre(Looks, Looks, Exposure, "exposure-panel*", "lumetra-presets*"));
    ExpectSameAfterReopening();
}

TEST_F(LayersTest, keepTheirOrderWhenAStepIsUndone)
{
    ClickLook(Look);
    Slider()->setValue(10);
    const Image before = Draw();
    ClickLook(OtherLook);

    FindAction("undo")->trigger();

    EXPECT_THAT(GetLayers(), ElementsAre("lumetra-presets*", "exposure-panel*"));
    EXPECT_TRUE(HaveSamePixels(Draw(), before));
}

TEST_F(LayersTest, comeBackWithEveryStep)
{
    std::vector<Image> pictures{original};
    const auto step = [&](const std::function<void()>& change) {
        change();
        pictures.push_back(Draw());
    };
    step([this] { ClickLook(Look); });
    step([this] { Slider()->setValue(10); });
    step([this] { editor->SetLayerOn(0, false); });
    step([this] { ApplyForGood(); });
    step([this] { editor->SetLayerOn(0, true); });
    step([this] { editor->SetLayerOn(1, false); });
    ASSERT_EQ(editor->GetUndoStack().count(), 6);

    for (int i = 5; i >= 0; --i) {
        FindAction("undo")->trigger();
        EXPECT_TRUE(HaveSamePixels(Draw(), pictures[i])) << "after undoing to step " << i;
    }
    for (int i = 1; i <= 6; ++i) {
        FindAction("redo")->trigger();
        EXPECT_TRUE(HaveSamePixels(Draw(), pictures[i])) << "after redoing step " << i;
    }
}

TEST_F(LayersTest, thatAreOffAreNotDrawnAndStay)
{
    ClickLook(Look);
    ApplyForGood();
    Slider()->setValue(10);

    editor->SetLayerOn(0, false);
    editor->SetLayerOn(1, false);

    EXPECT_THAT(GetLayers(), ElementsAre("-lumetra-presets", "-exposure-panel*"));
    EXPECT_TRUE(HaveSamePixels(Draw(), original));
    EXPECT_THAT(KeptEdit().toStdString(), HasSubstr("\"on\": false"));
    EXPECT_EQ(Slider()->value(), 10);
    ExpectSameAfterReopening();
    EXPECT_EQ(Slider()->value(), 10);
    editor->SetLayerOn(0, true);
    EXPECT_FALSE(HaveSamePixels(Draw(), original));
}

TEST_F(LayersTest, thatAreOffAreNotExported)
{
    ClickLook(Look);
    ApplyForGood();
    editor->SetLayerOn(0, false);

    LumetraEditor::ExportOptions options;
    options.path = Path("out.png");
    options.recipe.format = LumetraHost::PhotoFormat::Png;
    LumetraEditor::ExportJob job(editor->GetPhoto(), editor->GetPackages(), editor->GetRecords(),
                                 options);
    ASSERT_TRUE(job.Run([](int) {}));

    EXPECT_TRUE(HaveSamePixels(LumetraHost::PhotoReader::Read(options.path).image, original));
    EXPECT_THAT(editor->GetRecords(), IsEmpty());
}

TEST_F(LayersTest, areOnAgainWhenTheirModuleDrawsThem)
{
    Slider()->setValue(10);
    const Image lighter = Draw();
    editor->SetLayerOn(0, false);

    Slider()->setValue(9);
    Slider()->setValue(10);

    EXPECT_THAT(GetLayers(), ElementsAre("exposure-panel*"));
    EXPECT_TRUE(HaveSamePixels(Draw(), lighter));
}

TEST_F(LayersTest, ofAMissingModuleAreDrawnAndKept)
{
    ClickLook(Look);
    Slider()->setValue(10);
    const Image picture = Draw();
    RestartWithoutPanels();
    LoadPresetsPanel();

    Open(Path("lake.png"));

    EXPECT_THAT(GetLayers(), ElementsAre("lumetra-presets*", "exposure-panel*"));
    EXPECT_TRUE(HaveSamePixels(Draw(), picture));
    ClickLook(OtherLook);
    ClickLook(Look);
    RestartWithoutPanels();
    LoadBoth();
    Open(Path("lake.png"));
    EXPECT_EQ(Slider()->value(), 10);
    EXPECT_TRUE(HaveSamePixels(Draw(), picture));
}

TEST_F(LayersTest, ofAMissingModuleAreDrawnOnceAfterTheyWereCommitted)
{
    Slider()->setValue(10);
    RestartWithoutPanels();
    LoadPresetsPanel();
    Open(Path("lake.png"));
    ClickLook(Look);
    ApplyForGood();
    const Image picture = Draw();
    editor->SaveEdit();
    const auto kept = LumetraHost::EditFile::Read(Path("lake.png.lumetra.json")).state;
    EXPECT_EQ(kept.panels.count(QString::fromLatin1(Exposure)), 0U);

    Reopen();

    EXPECT_THAT(GetLayers(), ElementsAre(Exposure, Looks));
    EXPECT_EQ(Slider()->value(), 0);
    EXPECT_TRUE(HaveSamePixels(Draw(), picture));
}

TEST_F(LayersTest, areTakenOverByAModuleThatComesLater)
{
    Slider()->setValue(10);
    ClickLook(Look);
    const Image picture = Draw();
    RestartWithoutPanels();
    LoadPresetsPanel();
    Open(Path("lake.png"));

    LoadExamplePanel();

    EXPECT_THAT(GetLayers(), ElementsAre("exposure-panel*", "lumetra-presets*"));
    EXPECT_TRUE(HaveSamePixels(Draw(), picture));
    Slider()->setValue(0);
    EXPECT_THAT(GetLayers(), ElementsAre("exposure-panel*", "lumetra-presets*"));
    EXPECT_FALSE(HaveSamePixels(Draw(), picture));
}

TEST_F(LayersTest, ofALookHaveTheirEffectsOnceInTheFile)
{
    ClickLook(Look);
    const Image picture = Draw();

    const QByteArray text = KeptEdit();

    EXPECT_EQ(text.count("\"effects\""), 1);
    ExpectSameAfterReopening();
    RestartWithoutPanels();
    LoadExamplePanel();
    Open(Path("lake.png"));
    EXPECT_TRUE(HaveSamePixels(Draw(), picture)) << "the module is missing, its layer is there";
    Slider()->setValue(10);
    EXPECT_EQ(KeptEdit().count("\"effects\""), 2) << "its own and those of the other layer";
}

TEST_F(LayersTest, openAgainFromThePartThatAnyModuleHad)
{
    Slider()->setValue(10);
    ClickLook(Look);
    ApplyForGood();
    ASSERT_EQ(Slider()->value(), 0);
    const Image picture = Draw();
    Reopen();

    EXPECT_TRUE(LumetraEditor::LayerSteps(*editor).Open(0));

    EXPECT_EQ(Slider()->value(), 10);
    EXPECT_THAT(GetLayers(), ElementsAre("exposure-panel*", Looks));
    EXPECT_TRUE(HaveSamePixels(Draw(), picture));
    ExpectSameAfterReopening();
    EXPECT_EQ(Slider()->value(), 10);
    Slider()->setValue(0);
    EXPECT_THAT(GetLayers(), ElementsAre("exposure-panel*", Looks)) << "its effect is neutral now";
}

TEST_F(LayersTest, stayClosedWhereTheirModuleDrawsSomethingElse)
{
    WriteFile("hill.png.lumetra.json", R"({"format": "lumetra-sidecar", "version": 3, "layers": [
        {"module": "exposure-panel", "open": false, "package": "exposure",
         "effects": [{"effect": {"id": "exposure", "stops": 1}}], "name": "", "intensity": 100}]})");
    Open(WritePhoto("hill.png", 60, 40));
    const Image picture = Draw();

    EXPECT_FALSE(LumetraEditor::LayerSteps(*editor).Open(0));

    EXPECT_THAT(GetMessage().toStdString(), HasSubstr("cannot be opened again"));
    EXPECT_THAT(GetLayers(), ElementsAre(Exposure));
    EXPECT_TRUE(HaveSamePixels(Draw(), picture));
    EXPECT_FALSE(editor->GetUndoStack().canUndo());
}

TEST_F(LayersTest, ofAFileThatIsOnlyLookedAtAreNotWritten)
{
    ClickLook(Look);
    Slider()->setValue(10);
    const QByteArray text = KeptEdit();

    Reopen();
    editor->SaveEdit();

    EXPECT_EQ(ReadFile("lake.png.lumetra.json"), text);
}
