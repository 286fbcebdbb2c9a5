// SPDX-License-Identifier: MIT
// Whole stories, compared with the complete log: questions to the presets, values for the effects,
// calls to the host, and signals to the views.
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

    /// A slider 0..100 of intensity kind that drives tone's gain and bias, and grain's amount.
    static StoredNode ThreeVariables()
    {
        const auto variable = [](const char* effectID, const char* setting, double end) {
            return StoredNode{
                {"effectID", effectID}, {"setting", setting}, {"begin", 0.0}, {"end", end}};
        };
        const StoredList variables{variable("tone", "gain", 2.0), variable("grain", "amount", 1.0),
                                   variable("tone", "bias", -1.0)};
        return {{"type", 2},
                {"sliderSetting",
                 StoredNode{{"begin", 0.0}, {"end", 100.0}, {"variables", variables}}}};
    }

    static void LockDrawer(bool isLocked)
    {
        Zorvik::Util::ObjectsConnector::sendMessage(QStringLiteral("CORE_DRAWER_LOCK"), {isLocked});
    }

    std::vector<std::string> Shown() { return workspace->GetDrawer().GetStack().GetShown(); }
};

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

TEST_F(ModelScenarioTest, clickingAPreset)
{
    Set(At(0, 0), Model::AppliedRole, true);
    EXPECT_EQ(TakeText(), R"(
preset(Warm).SetApplied(true, true)
effect(tone).SetParameter("bias", 0.25)
drawer.GetPackage(none)
drawer.GetDefaultPackageIndex()
drawer.ApplyEffect([tone{gain: 1.5, bias: 0.25}] in Looks/Warm #0 blend 52, {})
statistics.SendEvent("click", {effectGroup: "Film", effectName: "Warm"})
model.dataChanged(0/0, 0/0, [258])
)");
    Set(At(0, 1), Model::AppliedRole, true);
    EXPECT_EQ(TakeText(), R"(
preset(Warm).SetApplied(false, false)
preset(Soft).SetApplied(true, true)
effect(tone).SetParameter("bias", 0)
effect(grain).SetParameter("amount", 0.5)
drawer.GetPackage(none)
effect(tone).SetParameter("gain", 1)
drawer.ApplyEffect([tone{gain: 1, bias: 0}, grain{amount: 0.5}] in Looks/Soft #0 blend 1, {})
statistics.SendEvent("click", {effectGroup: "Film", effectName: "Soft"})
model.dataChanged(0/1, 0/1, [258])
)") << "the open package is taken over";
    EXPECT_EQ(Shown().size(), 1U) << "presets of one panel replace each other";
    Set(At(0, 1), Model::AppliedRole, false);
    EXPECT_EQ(TakeText(), R"(
preset(Soft).SetApplied(false, true)
drawer.GetPackageIndex("Looks")
reset.ResetPackage(0)
statistics.SendEvent("reset", {effectGroup: "Film", effectName: "Soft"})
model.dataChanged(0/1, 0/1, [258])
)");
}

TEST_F(ModelScenarioTest, clickingTheAppliedPreset)
{
    Set(At(0, 0), Model::AppliedRole, true);
    log.Clear();
    Set(At(0, 0), Model::AppliedRole, true);
    EXPECT_EQ(TakeText(), R"(
preset(Warm).SetApplied(true, true)
effect(tone).SetParameter("bias", 0.25)
drawer.GetPackage(none)
drawer.ApplyEffect([tone{gain: 1.5, bias: 0.25}] in Looks/Warm #0 blend 52, {})
statistics.SendEvent("click", {effectGroup: "Film", effectName: "Warm"})
)") << "applied anew, and no change is announced";
}

TEST_F(ModelScenarioTest, switchingOffLeavesTheOthersAlone)
{
    Set(At(0, 0), Model::AppliedRole, true);
    log.Clear();
    Set(At(0, 1), Model::AppliedRole, false);
    EXPECT_THAT(log.Take(), ElementsAre("preset(Soft).SetApplied(false, true)"));
    EXPECT_TRUE(IsApplied(0, 0));
}

TEST_F(ModelScenarioTest, draggingTheIntensityOfABlendingPreset)
{
    Set(At(0, 0), Model::AppliedRole, true);
    log.Clear();
    for (const int value : {70, 70, 60, 50})
        Set(At(0, 0), Model::IntensityRole, value);
    Set(At(0, 0), Model::TuneRole, 0);
    EXPECT_EQ(TakeText(), R"(
preset(Warm).SetIntensity(70, true)
painter.StartPainting(BlendSource Looks/Warm restoring alpha)
painter.SetPositions(2147483647, 2147483647)
painter.UpdatePainting([] in / #none blend 78, 0)
preset(Warm).SetIntensity(60, true)
painter.UpdatePainting([] in / #none blend 104, 0)
preset(Warm).SetIntensity(50, true)
painter.UpdatePainting([] in / #none blend 129, 0)
preset(Warm).IntensityChangeEnd()
painter.FinishPainting(2147483647, 2147483647, false)
)");
    EXPECT_THAT(Shown(), ElementsAre("[tone{gain: 1.5, bias: 0.25}] in Looks/Warm #0 blend 129"));
}

TEST_F(ModelScenarioTest, draggingASliderOfThreeVariables)
{
    ParseGroup("Other", {Preset("Three", {Tone(1), Grain(0.5)}, ThreeVariables())});
    Attach();
    Set(At(3, 0), Model::AppliedRole, true);
    log.Clear();
    Set(At(3, 0), Model::IntensityRole, 75);
    Set(At(3, 0), Model::IntensityRole, 75);
    Set(At(3, 0), Model::IntensityRole, 20);
    Set(At(3, 0), Model::TuneRole, QVariant::fromValue(TuneSettingType::ChangeEnd));
    EXPECT_EQ(TakeText(), R"(
preset(Three).SetIntensity(75, true)
effect(tone).SetParameter("bias", 0)
effect(grain).SetParameter("amount", 0.5)
effect(tone).SetParameter("gain", 1.5)
effect(grain).SetParameter("amount", 0.75)
effect(tone).SetParameter("bias", -0.75)
painter.StartPainting(OneInput Looks/Three restoring alpha)
painter.SetPositions(2147483647, 2147483647)
painter.UpdatePainting([grain{amount: 0.75}, tone{gain: 1.5, bias: -0.75}] in / #none blend 1, 0)
preset(Three).SetIntensity(20, true)
effect(tone).SetParameter("bias", 0)
effect(grain).SetParameter("amount", 0.5)
effect(tone).SetParameter("gain", 0.4)
effect(grain).SetParameter("amount", 0.2)
effect(tone).SetParameter("bias", -0.2)
painter.UpdatePainting([grain{amount: 0.2}, tone{gain: 0.4, bias: -0.2}] in / #none blend 1, 0)
preset(Three).IntensityChangeEnd()
painter.FinishPainting(2147483647, 2147483647, false)
)");
    EXPECT_EQ(Shown(),
              (std::vector<std::string>{
                  "[tone{gain: 0.4, bias: -0.2}, grain{amount: 0.2}] in Looks/Three #0 blend 1"}));
}

TEST_F(ModelScenarioTest, draggingAfterAnExtraSliderWasTuned)
{
    auto sliders = Sliders(0, 1);
    sliders.at(0).SetValue(40);
    sliders.at(1).SetValue(90);
    Set(At(0, 1), Model::SettingsValuesRole, QVariant::fromValue(sliders));
    log.Clear();
    Set(At(0, 1), Model::IntensityRole, 75);
    EXPECT_EQ(TakeText(), R"(
preset(Soft).SetIntensity(75, true)
effect(tone).SetParameter("bias", 0.4)
effect(grain).SetParameter("amount", 0.9)
effect(tone).SetParameter("gain", 1.5)
painter.StartPainting(OneInput Looks/Soft restoring alpha)
painter.SetPositions(2147483647, 2147483647)
painter.UpdatePainting([tone{gain: 1.5, bias: 0.4}] in / #none blend 1, 0)
)") << "with the tuned values, not the defaults";
    Set(At(0, 1), Model::TuneRole, 0);
    Set(At(0, 1), Model::AppliedRole, true);
    EXPECT_EQ(TakeText(), R"(
preset(Soft).IntensityChangeEnd()
painter.FinishPainting(2147483647, 2147483647, false)
preset(Soft).SetApplied(true, true)
effect(tone).SetParameter("bias", 0.4)
effect(grain).SetParameter("amount", 0.9)
drawer.GetPackage(none)
drawer.GetDefaultPackageIndex()
effect(tone).SetParameter("gain", 1.5)
drawer.ApplyEffect([tone{gain: 1.5, bias: 0.4}, grain{amount: 0.9}] in Looks/Soft #0 blend 1, {})
statistics.SendEvent("click", {effectGroup: "Film", effectName: "Soft"})
model.dataChanged(0/1, 0/1, [258])
)");
}

// The wheel ends its steps like a release; a second end must do nothing.
TEST_F(ModelScenarioTest, endingAWheelChangeTwice)
{
    Set(At(0, 0), Model::AppliedRole, true);
    Set(At(0, 0), Model::IntensityRole, 50);
    Set(At(0, 0), Model::TuneRole, 0);
    log.Clear();
    Set(At(0, 0), Model::TuneRole, 0);
    EXPECT_THAT(log.Take(), ElementsAre("preset(Warm).IntensityChangeEnd()"));
}

TEST_F(ModelScenarioTest, tuningWhileAnotherPresetIsApplied)
{
    Set(At(0, 1), Model::AppliedRole, true);
    log.Clear();
    Set(At(0, 0), Model::TuneRole, QVariant::fromValue(TuneSettingType::Apply));
    EXPECT_EQ(TakeText(), R"(
preset(Soft).SetApplied(false, false)
preset(Warm).SetApplied(true, true)
effect(tone).SetParameter("bias", 0.25)
drawer.GetPackage(none)
drawer.ApplyEffect([tone{gain: 1.5, bias: 0.25}] in Looks/Warm #0 blend 52, {})
statistics.SendEvent("click", {effectGroup: "Film", effectName: "Warm"})
)");
    Set(At(0, 0), Model::IntensityRole, 60);
    Set(At(0, 0), Model::TuneRole, QVariant::fromValue(TuneSettingType::Apply));
    EXPECT_EQ(TakeText(), R"(
preset(Warm).SetIntensity(60, true)
painter.StartPainting(BlendSource Looks/Warm restoring alpha)
painter.SetPositions(2147483647, 2147483647)
painter.UpdatePainting([] in / #none blend 104, 0)
preset(Warm).SetApplied(true, true)
effect(tone).SetParameter("bias", 0.25)
drawer.GetPackage(none)
drawer.ApplyEffect([tone{gain: 1.5, bias: 0.25}] in Looks/Warm #0 blend 104, {})
statistics.SendEvent("click", {effectGroup: "Film", effectName: "Warm"})
)") << "applying forgets the open painting";
    Set(At(0, 0), Model::TuneRole, QVariant::fromValue(TuneSettingType::ChangeEnd));
    EXPECT_EQ(TakeText(), R"(
preset(Warm).IntensityChangeEnd()
)");
}

TEST_F(ModelScenarioTest, draggingAndResettingWhileTheDrawerIsLocked)
{
    LockDrawer(true);
    Set(At(0, 1), Model::AppliedRole, true);
    EXPECT_EQ(TakeText(), R"(
preset(Soft).SetApplied(true, true)
statistics.SendEvent("click", {effectGroup: "Film", effectName: "Soft"})
model.dataChanged(0/1, 0/1, [258])
)") << "nothing is drawn";
    EXPECT_TRUE(IsApplied(0, 1));
    Set(At(0, 1), Model::IntensityRole, 75);
    Set(At(0, 1), Model::IntensityRole, 25);
    Set(At(0, 1), Model::TuneRole, 0);
    EXPECT_EQ(TakeText(), R"(
preset(Soft).SetIntensity(75, true)
effect(tone).SetParameter("bias", 0)
effect(grain).SetParameter("amount", 0.5)
effect(tone).SetParameter("gain", 1.5)
painter.StartPainting(OneInput Looks/Soft restoring alpha)
painter.SetPositions(2147483647, 2147483647)
painter.UpdatePainting([tone{gain: 1.5, bias: 0}] in / #none blend 1, 0)
preset(Soft).SetIntensity(25, true)
effect(tone).SetParameter("bias", 0)
effect(grain).SetParameter("amount", 0.5)
effect(tone).SetParameter("gain", 0.5)
painter.UpdatePainting([tone{gain: 0.5, bias: 0}] in / #none blend 1, 0)
preset(Soft).IntensityChangeEnd()
painter.FinishPainting(2147483647, 2147483647, false)
)") << "live drawing does not look at the lock";
    auto sliders = Sliders(0, 1);
    sliders.at(1).SetValue(90);
    Set(At(0, 1), Model::SettingsValuesRole, QVariant::fromValue(sliders));
    Set(At(0, 1), Model::ResetRole, QVariant());
    EXPECT_EQ(TakeText(), R"(
preset(Soft).SetSettingsValues([tone=0, grain=90])
preset(Soft).ResetSettingsValues()
preset(Soft).SetSettingsValues([tone=0, grain=50])
effect(tone).GetParameter("gain")
preset(Soft).SetApplied(true, true)
statistics.SendEvent("click", {effectGroup: "Film", effectName: "Soft"})
model.dataChanged(0/1, 0/1, [])
)");
    Set(At(0, 1), Model::AppliedRole, false);
    EXPECT_EQ(TakeText(), R"(
preset(Soft).SetApplied(false, true)
drawer.GetPackageIndex("Looks")
statistics.SendEvent("reset", {effectGroup: "Film", effectName: "Soft"})
model.dataChanged(0/1, 0/1, [258])
)") << "switching off does not look at the lock either";
    EXPECT_THAT(Shown(), IsEmpty());
    LockDrawer(false);
    Set(At(0, 1), Model::AppliedRole, true);
    EXPECT_EQ(TakeText(), R"(
preset(Soft).SetApplied(true, true)
effect(tone).SetParameter("bias", 0)
effect(grain).SetParameter("amount", 0.5)
drawer.GetPackage(none)
drawer.GetDefaultPackageIndex()
effect(tone).SetParameter("gain", 0.5)
drawer.ApplyEffect([tone{gain: 0.5, bias: 0}, grain{amount: 0.5}] in Looks/Soft #0 blend 1, {})
statistics.SendEvent("click", {effectGroup: "Film", effectName: "Soft"})
model.dataChanged(0/1, 0/1, [258])
)") << "the intensity stays where it was dragged to";
}

TEST_F(ModelScenarioTest, committingThenLeaving)
{
    Set(At(0, 0), Model::AppliedRole, true);
    log.Clear();
    model.ApplyCurrentChanges(true);
    EXPECT_EQ(TakeText(), R"(
preset(Warm).SaveChanges()
drawer.ApplyEffect(empty{id: "empty"}, {})
statistics.SendEvent("apply", {effectGroup: "Film", effectName: "Warm"})
)");
    Set(At(0, 0), Model::AppliedRole, false);
    EXPECT_EQ(TakeText(), R"(
preset(Warm).SetApplied(false, true)
drawer.GetPackageIndex("Looks")
model.dataChanged(0/0, 0/0, [258])
)") << "nothing is taken off and no reset is sent";
    EXPECT_FALSE(model.HasUnsavedChanges());
    EXPECT_EQ(Shown().size(), 2U) << "the committed package and the empty effect";
    model.SetWorkspaceController({});
    EXPECT_EQ(TakeText(), R"(
preset(Warm).SetWorkspaceController(none)
preset(Soft).SetWorkspaceController(none)
preset(Bare).SetWorkspaceController(none)
model.dataChanged(-, -, [])
)");
}

TEST_F(ModelScenarioTest, discardingAnEdit)
{
    Set(At(0, 0), Model::AppliedRole, true);
    Set(At(0, 0), Model::IntensityRole, 20);
    log.Clear();
    model.ApplyCurrentChanges(false);
    model.DiscardUserChanges();
    EXPECT_EQ(TakeText(), R"(
preset(Warm).SetApplied(false, true)
drawer.GetPackageIndex("Looks")
reset.ResetPackage(0)
statistics.SendEvent("reset", {effectGroup: "Film", effectName: "Warm"})
model.dataChanged(0/0, 0/0, [258])
preset(Warm).ResetSettingsValues()
preset(Warm).SetSettingsValues([tone=25])
preset(Soft).ResetSettingsValues()
preset(Soft).SetSettingsValues([tone=0, grain=50])
effect(tone).GetParameter("gain")
preset(Bare).ResetSettingsValues()
preset(Bare).SetSettingsValues([tone=0])
preset(Warm).SetResetIndex(none)
preset(Soft).SetResetIndex(none)
preset(Bare).SetResetIndex(none)
)");
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
    EXPECT_EQ(TakeText(), R"(
preset(Warm).Load([tone{gain: 1.5, bias: 0}])
effect(tone).GetParameter("bias")
preset(Warm).SetIntensityFromEffectSettings([tone{gain: 1.5, bias: 0}] in Looks/ #4 blend 129)
model.dataChanged(-, -, [258])
preset(Warm).SetResetIndex(4)
preset(Soft).SetResetIndex(4)
preset(Bare).SetResetIndex(4)
preset(Warm).SetIntensity(100, true)
painter.StartPainting(BlendSource Looks/Warm restoring alpha)
painter.SetPositions(2147483647, 2147483647)
painter.UpdatePainting([] in / #none blend 1, 0)
preset(Warm).IntensityChangeEnd()
painter.FinishPainting(2147483647, 2147483647, false)
)");
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
