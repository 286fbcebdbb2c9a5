// SPDX-License-Identifier: MIT
#include "ControllerFixture.h"

#include "Zorvik/Exception.h"

using namespace LumetraTest;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// How a preset is applied to, drawn live on and reset in the workspace.
class ControllerDrawingTest : public ControllerFixture
{
protected:
    OpenController::Ptr BuildWarm()
    {
        return BuildAttached(Bench::Preset("Warm", {Bench::Tone(1.5)}, Bench::Blending(80)));
    }

    OpenController::Ptr BuildSoft()
    {
        return BuildAttached(
            Bench::Preset("Soft", {Bench::Tone(1), Bench::Grain(0.5)}, Bench::GainSlider()));
    }

    /// Puts a package on the drawer as another preset would.
    void ApplyOther(const std::string& package, unsigned index)
    {
        Zorvik::Quindle::EffectsSettings settings(1);
        settings.Package().SetPackageName(package);
        settings.Package().SetPresetName("other");
        settings.Package().SetIndex(index);
        const CallLog::Pause pause(log);
        workspace->GetDrawer().ApplyEffect(settings, std::map<std::string, int>());
    }
};

} // namespace

TEST_F(ControllerDrawingTest, appliesItsEffectsUnderTheDefaultIndex)
{
    BuildWarm()->ApplyInternal();
    EXPECT_THAT(log.Take(),
                ElementsAre("drawer.GetPackage(none)", "drawer.GetDefaultPackageIndex()",
                            "drawer.ApplyEffect([tone{gain: 1.5, bias: 0}] in Looks/Warm #0 blend "
                            "52, {})"));
}

TEST_F(ControllerDrawingTest, reusesTheIndexOfAnOpenPackageOfItsName)
{
    ApplyOther("Looks", 6);
    const auto preset = BuildWarm();
    preset->ApplyInternal();
    EXPECT_THAT(log.Take(),
                ElementsAre("drawer.GetPackage(none)",
                            "drawer.ApplyEffect([tone{gain: 1.5, bias: 0}] in Looks/Warm #6 blend "
                            "52, {})"))
        << "the default index is not asked for";
    EXPECT_EQ(preset->m_resetIndex, 6U);
}

TEST_F(ControllerDrawingTest, aPackageOfAnotherNameOnTopIsLeftAlone)
{
    ApplyOther("Frames", 6);
    BuildWarm()->ApplyInternal();
    EXPECT_EQ(log.Take().back(),
              "drawer.ApplyEffect([tone{gain: 1.5, bias: 0}] in Looks/Warm #7 blend 52, {})");
}

TEST_F(ControllerDrawingTest, itsResetIndexWins)
{
    ApplyOther("Looks", 6);
    const auto preset = BuildWarm();
    preset->SetResetIndex(3);
    preset->ApplyInternal();
    EXPECT_THAT(log.Take(),
                ElementsAre("drawer.GetPackage(none)",
                            "drawer.ApplyEffect([tone{gain: 1.5, bias: 0}] in Looks/Warm #3 blend "
                            "52, {})"));
    EXPECT_EQ(preset->m_resetIndex, 3U);
}

TEST_F(ControllerDrawingTest, keepsTheIndexForTheNextTime)
{
    const auto preset = BuildWarm();
    preset->SetApplied(true, true);
    EXPECT_EQ(preset->m_resetIndex, 0U);
    preset->SetApplied(false, true);
    EXPECT_EQ(preset->m_resetIndex, 0U) << "also after its reset";
    log.Clear();
    preset->ApplyInternal();
    EXPECT_EQ(log.Take().back(),
              "drawer.ApplyEffect([tone{gain: 1.5, bias: 0}] in Looks/Warm #0 blend 52, {})");
}

TEST_F(ControllerDrawingTest, passesWaitApplyOn)
{
    const auto preset = BuildWarm();
    preset->SetWaitApply(true);
    preset->ApplyInternal();
    EXPECT_EQ(log.Take().back(),
              "drawer.ApplyEffect([tone{gain: 1.5, bias: 0}] in Looks/Warm #0 blend 52 wait, {})");
}

TEST_F(ControllerDrawingTest, appliesWithItsSlidersAndItsIntensityWrittenIn)
{
    const auto preset = BuildAttached(
        Bench::Preset("Soft", {Bench::Tone(1, 0.25)}, Bench::GainSlider()), BiasAndAmount());
    auto sliders = preset->GetSettings();
    sliders[0].SetValue(60);
    preset->SetSettingsValues(sliders);
    preset->SetIntensity(25, false);
    preset->ApplyInternal();
    const std::vector<std::string> expected = {
        "drawer.GetPackage(none)", "drawer.GetDefaultPackageIndex()",
        "drawer.ApplyEffect([tone{gain: 0.5, bias: 0.6}] in Looks/Soft #0 blend 1, {})"};
    EXPECT_EQ(TakeHostCalls(), expected);
}

TEST_F(ControllerDrawingTest, aLockedDrawerReceivesNothing)
{
    const auto preset = BuildWarm();
    LockDrawer(true);
    preset->SetApplied(true, true);
    EXPECT_TRUE(preset->IsApplied());
    EXPECT_THAT(TakeHostCalls(),
                ElementsAre("statistics.SendEvent(\"click\", {effectGroup: \"Film\", effectName: "
                            "\"Warm\"})"));
    EXPECT_EQ(preset->m_resetIndex, 0xFFFFFFFF);

    LockDrawer(false);
    preset->ApplyInternal();
    EXPECT_EQ(workspace->GetDrawer().GetStack().GetShown().size(), 1U);
}

TEST_F(ControllerDrawingTest, liveDrawingIgnoresTheLockAndTheAppliedFlag)
{
    const auto preset = BuildWarm();
    LockDrawer(true);
    preset->SetIntensity(40, true);
    EXPECT_EQ(log.Take().size(), 3U);
    LockDrawer(false);
}

TEST_F(ControllerDrawingTest, resettingTakesThePackageOfItsNameOff)
{
    ApplyOther("Looks", 4);
    BuildWarm()->ResetInternal();
    EXPECT_THAT(log.Take(),
                ElementsAre("drawer.GetPackageIndex(\"Looks\")", "reset.ResetPackage(4)"));
    EXPECT_THAT(workspace->GetDrawer().GetStack().GetShown(), IsEmpty());
}

TEST_F(ControllerDrawingTest, resettingWithoutSuchAPackageDoesNothing)
{
    ApplyOther("Frames", 4);
    BuildWarm()->ResetInternal();
    EXPECT_THAT(log.Take(), ElementsAre("drawer.GetPackageIndex(\"Looks\")"));
}

TEST_F(ControllerDrawingTest, anUnchangedValueDrawsNothing)
{
    const auto preset = BuildWarm();
    preset->SetIntensity(80, true);
    EXPECT_THAT(log.Take(), IsEmpty());
    EXPECT_FALSE(preset->m_painting);
}

TEST_F(ControllerDrawingTest, aValueThatIsNotLiveIsOnlyStored)
{
    const auto preset = BuildWarm();
    preset->SetIntensity(40, false);
    EXPECT_EQ(preset->GetIntensity(), 40);
    EXPECT_THAT(log.Take(), IsEmpty());
    EXPECT_FALSE(preset->m_painting);
}

TEST_F(ControllerDrawingTest, aBlendingDragStartsOnePaintingUpdatesItAndFinishesIt)
{
    const auto preset = BuildWarm();
    preset->ApplyInternal();
    log.Clear();
    preset->SetIntensity(50, true);
    preset->SetIntensity(50, true);
    preset->SetIntensity(100, true);
    preset->IntensityChangeEnd();
    preset->IntensityChangeEnd();
    EXPECT_THAT(log.Take(),
                ElementsAre("painter.StartPainting(BlendSource Looks/Warm restoring alpha)",
                            "painter.SetPositions(2147483647, 2147483647)",
                            "painter.UpdatePainting([] in / #none blend 129, 0)",
                            "painter.UpdatePainting([] in / #none blend 1, 0)",
                            "painter.FinishPainting(2147483647, 2147483647, false)"));
    EXPECT_THAT(workspace->GetDrawer().GetStack().GetShown(),
                ElementsAre("[tone{gain: 1.5, bias: 0}] in Looks/Warm #0 blend 1"));
}

TEST_F(ControllerDrawingTest, aSliderDragSendsTheEffectsThatItDrives)
{
    const auto preset = BuildSoft();
    preset->SetIntensity(75, true);
    preset->SetIntensity(25, true);
    preset->IntensityChangeEnd();
    EXPECT_THAT(
        TakeHostCalls(),
        ElementsAre("painter.StartPainting(OneInput Looks/Soft restoring alpha)",
                    "painter.SetPositions(2147483647, 2147483647)",
                    "painter.UpdatePainting([tone{gain: 1.5, bias: 0}] in / #none blend 1, 0)",
                    "painter.UpdatePainting([tone{gain: 0.5, bias: 0}] in / #none blend 1, 0)",
                    "painter.FinishPainting(2147483647, 2147483647, false)"));
}

TEST_F(ControllerDrawingTest, aSliderDragSendsItsEffectsInAscendingOrderOfId)
{
    const StoredNode intensity{
        {"type", 2},
        {"sliderSetting",
         StoredNode{
             {"begin", 0.0},
             {"end", 100.0},
             {"variables",
              StoredList{
                  StoredNode{{"effectID", "tone"}, {"setting", "gain"}, {"end", 2.0}},
                  StoredNode{{"effectID", "grain"}, {"setting", "amount"}, {"end", 1.0}}}}}}};
    const auto preset =
        BuildAttached(Bench::Preset("Both", {Bench::Tone(1), Bench::Grain(0.5)}, intensity));
    preset->SetIntensity(20, true);
    EXPECT_EQ(TakeHostCalls().back(),
              "painter.UpdatePainting([grain{amount: 0.2}, tone{gain: 0.4, bias: 0}] in / #none "
              "blend 1, 0)");
}

TEST_F(ControllerDrawingTest, aSliderDragWritesTheExtraSlidersFirst)
{
    const auto preset = BuildAttached(
        Bench::Preset("Soft", {Bench::Tone(1, 0.25)}, Bench::GainSlider()), BiasAndAmount());
    preset->SetIntensity(75, true);
    EXPECT_THAT(log.GetLines("effect("), ElementsAre("effect(tone).SetParameter(\"bias\", 0.25)",
                                                     "effect(tone).SetParameter(\"gain\", 1.5)"));
}

TEST_F(ControllerDrawingTest, aPresetWithoutIntensityNeverDrawsLive)
{
    const auto preset = BuildAttached(Bench::Preset("Bare", {Bench::Tone(1)}));
    preset->SetIntensity(50, true);
    preset->IntensityChangeEnd();
    EXPECT_THAT(log.Take(), IsEmpty());
}

TEST_F(ControllerDrawingTest, aSliderWithoutVariablesStillStartsAPainting)
{
    const auto preset = BuildAttached(Bench::Preset(
        "Odd", {Bench::Tone(1)}, StoredNode{{"type", 2}, {"sliderSetting", StoredNode{}}}));
    preset->SetIntensity(1, true);
    EXPECT_THAT(log.Take(), ElementsAre("painter.StartPainting(OneInput Looks/Odd restoring alpha)",
                                        "painter.SetPositions(2147483647, 2147483647)",
                                        "painter.UpdatePainting([] in / #none blend 1, 0)"));
}

TEST_F(ControllerDrawingTest, applyingForgetsAnOpenPaintingWithoutFinishingIt)
{
    const auto preset = BuildWarm();
    preset->SetIntensity(50, true);
    EXPECT_TRUE(preset->m_painting);
    preset->ApplyInternal();
    EXPECT_FALSE(preset->m_painting);
    log.Clear();
    preset->IntensityChangeEnd();
    EXPECT_THAT(log.Take(), IsEmpty());
    preset->SetIntensity(60, true);
    EXPECT_EQ(log.Take().front(), "painter.StartPainting(BlendSource Looks/Warm restoring alpha)");
}

TEST_F(ControllerDrawingTest, aPaintingThatLostItsWorkspaceCannotBeFinished)
{
    const auto preset = BuildWarm();
    preset->SetIntensity(50, true);
    preset->SetWorkspaceController({});
    EXPECT_TRUE(preset->m_painting) << "another workspace does not end it";
    EXPECT_THROW(preset->IntensityChangeEnd(), Zorvik::Exception);
}

TEST_F(ControllerDrawingTest, presetsOfOnePackageReplaceEachOther)
{
    const auto warm = BuildWarm();
    const auto soft = BuildSoft();
    warm->SetApplied(true, true);
    warm->SetApplied(false, false);
    soft->SetApplied(true, true);
    soft->SetApplied(false, false);
    warm->SetApplied(true, true);
    EXPECT_THAT(workspace->GetDrawer().GetStack().GetShown(),
                ElementsAre("[tone{gain: 1.5, bias: 0}] in Looks/Warm #0 blend 52"));
}
