// SPDX-License-Identifier: MIT
// Whole stories, told by everything that the host and the views see of them, in order.
#include "ModelFixture.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Quindle/EffectRegistry.h"
#include "Zorvik/Util/ObjectsConnector.h"

#include <QImage>

using namespace LumetraTest;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ModelScenarioTest : public ModelFixture
{
protected:
    ModelScenarioTest() { FillAndAttach(); }

    std::vector<std::string> Shown() { return workspace->GetDrawer().GetStack().GetShown(); }
};

std::string Event(const std::string& event, const std::string& group, const std::string& name)
{
    return "statistics.SendEvent(\"" + event + "\", {effectGroup: \"" + group +
           "\", effectName: \"" + name + "\"})";
}

} // namespace

TEST_F(ModelScenarioTest, startUp)
{
    PresetBench bench;
    ModelSpy itsSpy(bench.log, bench.model);
    bench.FillAndAttach();
    EXPECT_THAT(ModelText(bench.model, {256, 258, 261, 263, 270}),
                ElementsAre("\"Film\" | \"\" | - | - | -", "  \"Warm\" | false | 80 | 100 | false",
                            "  \"Soft\" | false | 50 | 100 | false", "\"Plain\" | \"\" | - | - | -",
                            "  \"Bare\" | false | 0 | 0 | false",
                            "\"User presets\" | \"\" | - | - | -"));
}

TEST_F(ModelScenarioTest, clickingAPresetWhileAnotherIsApplied)
{
    Set(At(0, 1), Model::AppliedRole, true);
    log.Clear();
    Set(At(0, 0), Model::AppliedRole, true);
    EXPECT_THAT(log.Take(),
                ElementsAre("preset(Soft).SetApplied(false, false)",
                            "preset(Warm).SetApplied(true, true)",
                            "effect(tone).SetParameter(\"bias\", 0.25)", "drawer.GetPackage(none)",
                            "drawer.ApplyEffect([tone{gain: 1.5, bias: 0.25}] in Looks/Warm #0 "
                            "blend 52, {})",
                            Event("click", "Film", "Warm"), "model.dataChanged(0/0, 0/0, [258])"));
    EXPECT_EQ(Shown().size(), 1U) << "presets of one panel replace each other";
}

TEST_F(ModelScenarioTest, clickingTheAppliedPreset)
{
    Set(At(0, 0), Model::AppliedRole, true);
    log.Clear();
    Set(At(0, 0), Model::AppliedRole, true);
    EXPECT_THAT(TakeOutside(),
                ElementsAre("drawer.GetPackage(none)",
                            "drawer.ApplyEffect([tone{gain: 1.5, bias: 0.25}] in Looks/Warm #0 "
                            "blend 52, {})",
                            Event("click", "Film", "Warm")))
        << "applied anew, and no change is announced";
}

TEST_F(ModelScenarioTest, switchingOffLeavesTheOthersAlone)
{
    Set(At(0, 0), Model::AppliedRole, true);
    log.Clear();
    Set(At(0, 1), Model::AppliedRole, false);
    EXPECT_THAT(TakeCalls(), ElementsAre("preset(Soft).SetApplied(false, true)"));
    EXPECT_TRUE(IsApplied(0, 0));
}

TEST_F(ModelScenarioTest, draggingTheIntensityOfABlendingPreset)
{
    Set(At(0, 0), Model::AppliedRole, true);
    log.Clear();
    for (const int value : {70, 70, 60, 50})
        Set(At(0, 0), Model::IntensityRole, value);
    Set(At(0, 0), Model::TuneRole, 0);
    EXPECT_THAT(TakeOutside(),
                ElementsAre("painter.StartPainting(BlendSource Looks/Warm restoring alpha)",
                            "painter.SetPositions(2147483647, 2147483647)",
                            "painter.UpdatePainting([] in / #none blend 78, 0)",
                            "painter.UpdatePainting([] in / #none blend 104, 0)",
                            "painter.UpdatePainting([] in / #none blend 129, 0)",
                            "painter.FinishPainting(2147483647, 2147483647, false)"));
    EXPECT_THAT(Shown(), ElementsAre("[tone{gain: 1.5, bias: 0.25}] in Looks/Warm #0 blend 129"));
}

TEST_F(ModelScenarioTest, draggingTheIntensityOfASliderPreset)
{
    Set(At(0, 1), Model::AppliedRole, true);
    log.Clear();
    Set(At(0, 1), Model::IntensityRole, 75);
    Set(At(0, 1), Model::IntensityRole, 25);
    Set(At(0, 1), Model::TuneRole, QVariant::fromValue(TuneSettingType::ChangeEnd));
    EXPECT_THAT(TakeOutside(),
                ElementsAre("painter.StartPainting(OneInput Looks/Soft restoring alpha)",
                            "painter.SetPositions(2147483647, 2147483647)",
                            "painter.UpdatePainting([tone{gain: 1.5, bias: 0}] in / #none blend 1, "
                            "0)",
                            "painter.UpdatePainting([tone{gain: 0.5, bias: 0}] in / #none blend 1, "
                            "0)",
                            "painter.FinishPainting(2147483647, 2147483647, false)"));
    EXPECT_THAT(Shown(), ElementsAre("[tone{gain: 0.5, bias: 0}, grain{amount: 0.5}] in "
                                     "Looks/Soft #0 blend 1"));
}

// The wheel ends its steps like a release; a second end must do nothing.
TEST_F(ModelScenarioTest, endingAWheelChangeTwice)
{
    Set(At(0, 0), Model::AppliedRole, true);
    Set(At(0, 0), Model::IntensityRole, 50);
    Set(At(0, 0), Model::TuneRole, 0);
    log.Clear();
    Set(At(0, 0), Model::TuneRole, 0);
    EXPECT_THAT(TakeOutside(), IsEmpty());
}

TEST_F(ModelScenarioTest, draggingWhileTheDrawerIsLocked)
{
    Zorvik::Util::ObjectsConnector::sendMessage(QStringLiteral("CORE_DRAWER_LOCK"), {true});
    Set(At(0, 0), Model::AppliedRole, true);
    EXPECT_THAT(TakeOutside(),
                ElementsAre(Event("click", "Film", "Warm"), "model.dataChanged(0/0, 0/0, [258])"));
    EXPECT_TRUE(IsApplied(0, 0));
    EXPECT_THAT(Shown(), IsEmpty());

    Zorvik::Util::ObjectsConnector::sendMessage(QStringLiteral("CORE_DRAWER_LOCK"), {false});
    Set(At(0, 0), Model::TuneRole, 1);
    EXPECT_EQ(Shown().size(), 1U);
}

TEST_F(ModelScenarioTest, committingThenLeaving)
{
    Set(At(0, 0), Model::AppliedRole, true);
    log.Clear();
    model.ApplyCurrentChanges(true);
    Set(At(0, 0), Model::AppliedRole, false);
    EXPECT_THAT(TakeOutside(),
                ElementsAre("drawer.ApplyEffect(empty{id: \"empty\"}, {})",
                            Event("apply", "Film", "Warm"), "drawer.GetPackageIndex(\"Looks\")",
                            "model.dataChanged(0/0, 0/0, [258])"))
        << "nothing is taken off and no reset is sent";
    EXPECT_FALSE(model.HasUnsavedChanges());
    EXPECT_EQ(Shown().size(), 2U) << "the committed package and the empty effect";
}

TEST_F(ModelScenarioTest, discardingAnEdit)
{
    Set(At(0, 0), Model::AppliedRole, true);
    Set(At(0, 0), Model::IntensityRole, 20);
    log.Clear();
    model.ApplyCurrentChanges(false);
    model.DiscardUserChanges();
    EXPECT_THAT(TakeOutside(),
                ElementsAre("drawer.GetPackageIndex(\"Looks\")", "reset.ResetPackage(0)",
                            Event("reset", "Film", "Warm"), "model.dataChanged(0/0, 0/0, [258])"));
    EXPECT_THAT(Shown(), IsEmpty());
    EXPECT_EQ(model.data(At(0, 0), 261), 80);
}

TEST_F(ModelScenarioTest, switchingBetweenPresetsOfOnePanelKeepsOnePackage)
{
    for (const auto& [group, row] : {std::pair(0, 0), {0, 1}, {1, 0}, {0, 0}})
        Set(At(group, row), Model::AppliedRole, true);
    EXPECT_THAT(Shown(), ElementsAre("[tone{gain: 1.5, bias: 0.25}] in Looks/Warm #0 blend 52"));
}

TEST_F(ModelScenarioTest, theNextPresetAfterACommitStacksOnTop)
{
    Set(At(0, 0), Model::AppliedRole, true);
    model.ApplyCurrentChanges(true);
    Set(At(0, 0), Model::AppliedRole, false);
    Set(At(1, 0), Model::AppliedRole, true);
    EXPECT_THAT(Shown(),
                ElementsAre("committed [tone{gain: 1.5, bias: 0.25}] in Looks/Warm #0 blend 52",
                            "committed empty{id: \"empty\"}",
                            "[tone{gain: 3, bias: 0}] in Looks/Bare #1 blend 1"));
}

TEST_F(ModelScenarioTest, openingAnEditAgainAndChangingIt)
{
    // Given an edit that another session had left on the photo as package 4
    const auto tone = Zorvik::Quindle::EffectRegistry::Find("tone")->create();
    tone->SetParameter("gain", 1.5);
    Zorvik::Quindle::EffectsSettings edit(1);
    edit.Effects().push_back(tone);
    edit.SetBlendAmount(129);
    edit.Package().SetPackageName("Looks");
    edit.Package().SetIndex(4);
    workspace->GetDrawer().ApplyEffect(edit, std::map<std::string, int>());
    log.Clear();

    // When the host activates it and the user drags on
    model.ActivatePreset("Warm", edit);
    model.SetResetIndex(4);
    Set(At(0, 0), Model::IntensityRole, 100);
    Set(At(0, 0), Model::TuneRole, 0);

    // Then the drag continues on that package
    EXPECT_THAT(TakeOutside(),
                ElementsAre("model.dataChanged(-, -, [258])",
                            "painter.StartPainting(BlendSource Looks/Warm restoring alpha)",
                            "painter.SetPositions(2147483647, 2147483647)",
                            "painter.UpdatePainting([] in / #none blend 1, 0)",
                            "painter.FinishPainting(2147483647, 2147483647, false)"));
    EXPECT_THAT(Shown(), ElementsAre("[tone{gain: 1.5, bias: 0}] in Looks/ #4 blend 1"));
}

TEST_F(ModelScenarioTest, savingStoringAndOpeningAgain)
{
    // Given a tuned preset, saved under a new name and marked
    auto sliders = Sliders(0, 0);
    sliders.at(0).SetValue(60);
    Set(At(0, 0), Model::SettingsValuesRole, QVariant::fromValue(sliders));
    Set(At(0, 0), Model::IntensityRole, 40);
    Set(At(0, 0), Model::SaveAsUserPresetRole, QStringLiteral("Mine"));
    Set(At(2, 0), Model::FavouriteRole, true);
    const QVariant id = model.data(At(2, 0), Model::PresetIdRole);

    // When it is stored and opened by the next start
    const auto stored = StoredNode{}.ToSerializer("user");
    static_cast<const Zorvik::Brassel::ISerializable&>(model).Serialize(stored);
    PresetBench next;
    next.ParseSliders({Slider("tone", "bias"), Slider("grain", "amount")});
    next.model.ParseAdditionalInfo(Zorvik::Brassel::ConstSerializerPtr(stored));
    next.Attach();
    next.log.Clear();

    // Then it is the same preset and draws the same
    const QModelIndex mine = next.At(0, 0);
    EXPECT_EQ(next.model.data(mine, Model::PresetIdRole), id);
    EXPECT_EQ(next.model.data(mine, Model::IntensityRole), 40);
    EXPECT_EQ(next.model.data(mine, Model::FavouriteRole), true);
    next.Set(mine, Model::AppliedRole, true);
    EXPECT_THAT(next.workspace->GetDrawer().GetStack().GetShown(),
                ElementsAre("[tone{gain: 1.5, bias: 0.6}] in Looks/" + id.toString().toStdString() +
                            " #0 blend 155"));
}

TEST_F(ModelScenarioTest, closingThePhotoAndOpeningAnother)
{
    Set(At(0, 0), Model::AppliedRole, true);
    model.SetWorkspaceController({});
    workspace.reset();
    EXPECT_FALSE(model.HasUnsavedChanges());
    Set(At(0, 0), Model::FavouriteRole, true);
    EXPECT_TRUE(model.data(At(0, 0), Model::PreviewImageRole).value<QImage>().isNull());

    workspace = std::make_shared<RecordingWorkspace>(log);
    Attach();
    log.Clear();
    Set(At(0, 0), Model::AppliedRole, true);
    EXPECT_THAT(Shown(), ElementsAre("[tone{gain: 1.5, bias: 0.25}] in Looks/Warm #0 blend 52"));
}
