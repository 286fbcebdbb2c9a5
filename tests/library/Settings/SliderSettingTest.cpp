// SPDX-License-Identifier: MIT
#include "SliderFixture.h"

#include "Zorvik/Quindle/EffectsSettings.h"

#include <gmock/gmock.h>

#include <limits>

using namespace LumetraTest;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using Zorvik::Lumetra::LumetraPresets::IIntensitySetting;
using Zorvik::Lumetra::LumetraPresets::IntensitySettingType;
using Zorvik::Lumetra::LumetraPresets::SliderSetting;

namespace {

constexpr int Lowest = std::numeric_limits<int>::min();
constexpr int Highest = std::numeric_limits<int>::max();

class SliderSettingTest : public SliderFixture
{
};

} // namespace

TEST_F(SliderSettingTest, aFreshOneIsZeroAndDrivesNothing)
{
    SliderSetting slider(false);
    EXPECT_EQ(slider.Min(), 0);
    EXPECT_EQ(slider.Max(), 0);
    EXPECT_EQ(slider.Value(), 0);
    EXPECT_EQ(slider.GetType(), IntensitySettingType::Slider);
    EXPECT_EQ(static_cast<int>(slider.GetType()), 2);
    EXPECT_EQ(slider.EffectID(), "");
    EXPECT_EQ(slider.Title(), "");
    EXPECT_THAT(slider.GetEffectIDs(), IsEmpty());
    EXPECT_EQ(slider.GetClassId(), "sliderSetting");
}

TEST_F(SliderSettingTest, withoutVariablesSavingSucceedsAndChangesNothing)
{
    for (const bool isStrict : {false, true}) {
        const SliderSetting slider(isStrict);
        EffectList list = {Tone(1)};
        EXPECT_TRUE(slider.SaveValue(list));
        EffectList none;
        EXPECT_TRUE(slider.SaveValue(none));
        EXPECT_THAT(log.Take(), IsEmpty());
    }
}

TEST_F(SliderSettingTest, withoutVariablesLoadingFailsAndChangesNothing)
{
    for (const bool isStrict : {false, true}) {
        SliderSetting slider(isStrict);
        slider.SetValue(7);
        EXPECT_FALSE(slider.LoadValue(EffectList{Tone(1)}));
        EXPECT_EQ(slider.Value(), 7);
        EXPECT_THAT(log.Take(), IsEmpty());
    }
}

TEST_F(SliderSettingTest, mapsThePositionOntoTheParameterAndBack)
{
    auto slider = Read(Stored(0, 100, {Variable("tone", "gain", 0.0, 2.0)}));
    slider.SetValue(25);
    EffectList list = {Tone(9)};
    EXPECT_TRUE(slider.SaveValue(list));
    EXPECT_EQ(Gain(list[0]), 0.5);

    slider.SetValue(0);
    EXPECT_TRUE(slider.LoadValue(list));
    EXPECT_EQ(slider.Value(), 25);
}

TEST_F(SliderSettingTest, mapsRangesThatDoNotBeginAtZero)
{
    auto slider = Read(Stored(-50, 50, {Variable("tone", "gain", 1.0, 3.0)}));
    EffectList list = {Tone(9)};
    slider.SetValue(-50);
    slider.SaveValue(list);
    EXPECT_EQ(Gain(list[0]), 1.0);
    slider.SetValue(50);
    slider.SaveValue(list);
    EXPECT_EQ(Gain(list[0]), 3.0);
    slider.LoadValue(EffectList{Tone(2.5)});
    EXPECT_EQ(slider.Value(), 25);
}

TEST_F(SliderSettingTest, mapsAnInvertedParameter)
{
    auto slider = Read(Stored(0, 100, {Variable("tone", "gain", 1.0, 0.0)}));
    EffectList list = {Tone(9)};
    slider.SetValue(100);
    slider.SaveValue(list);
    EXPECT_EQ(Gain(list[0]), 0.0);
    slider.LoadValue(EffectList{Tone(0.75)});
    EXPECT_EQ(slider.Value(), 25);
}

// (3 - 0) * 0.1 / 100 and not 3 * (0.1 / 100), which is 0.003.
TEST_F(SliderSettingTest, multipliesBeforeItDivides)
{
    auto slider = Read(Stored(0, 100, {Variable("grain", "amount", 0.0, 0.1)}));
    slider.SetValue(3);
    EffectList list = {Make("grain")};
    slider.SaveValue(list);
    EXPECT_THAT(log.Take(),
                ElementsAre("effect(grain).SetParameter(\"amount\", 0.0030000000000000005)"));
}

TEST_F(SliderSettingTest, readsHalfwayPositionsAwayFromZero)
{
    auto slider = Read(Stored(0, 100, {Variable("tone", "gain", 0.0, 100.0)}));
    const std::pair<double, int> rows[] = {{24.5, 25},
                                           {-24.5, -25},
                                           {24.499999999999996, 24},
                                           {-24.499999999999996, -24},
                                           {0.5, 1},
                                           {-0.5, -1},
                                           {0.25, 0},
                                           {-0.25, 0},
                                           // Half is added, then truncated: the sum is 1.
                                           {0.49999999999999994, 1}};
    for (const auto& [parameter, position] : rows) {
        EXPECT_TRUE(slider.LoadValue(EffectList{Tone(parameter)}));
        EXPECT_EQ(slider.Value(), position) << parameter;
    }
}

TEST_F(SliderSettingTest, doesNotClampItsValue)
{
    auto slider = Read(Stored(0, 100, {Variable("tone", "gain", 0.0, 1.0)}));
    slider.SetValue(500);
    EXPECT_EQ(slider.Value(), 500);
    EffectList list = {Tone(0)};
    slider.SaveValue(list);
    EXPECT_EQ(Gain(list[0]), 5.0);
    slider.LoadValue(EffectList{Tone(-3)});
    EXPECT_EQ(slider.Value(), -300);
}

TEST_F(SliderSettingTest, truncatesItsEndsTowardsZero)
{
    EXPECT_EQ(Read(Stored(2.9, 1.9, {})).Min(), 2);
    EXPECT_EQ(Read(Stored(2.9, 1.9, {})).Max(), 1);
    EXPECT_EQ(Read(Stored(-1.9, -0.5, {})).Min(), -1);
    EXPECT_EQ(Read(Stored(-1.9, -0.5, {})).Max(), 0);
}

TEST_F(SliderSettingTest, holdsEndsBeyondIntAtIntsEnds)
{
    EXPECT_EQ(Read(Stored(-3e9, 3e9, {})).Min(), Lowest);
    EXPECT_EQ(Read(Stored(-3e9, 3e9, {})).Max(), Highest);
    EXPECT_EQ(Read(Stored(2147483647.0, 2147483648.0, {})).Min(), Highest);
    EXPECT_EQ(Read(Stored(1e300, -1e300, {})).Max(), Lowest);
}

TEST_F(SliderSettingTest, loadingWithEqualEndsOfTheParameterSaturates)
{
    auto slider = Read(Stored(0, 100, {Variable("tone", "gain", 1.0, 1.0)}));
    slider.LoadValue(EffectList{Tone(2)});
    EXPECT_EQ(slider.Value(), Highest) << "infinity";
    slider.LoadValue(EffectList{Tone(0)});
    EXPECT_EQ(slider.Value(), Lowest) << "minus infinity";
    slider.LoadValue(EffectList{Tone(1)});
    EXPECT_EQ(slider.Value(), 0) << "not a number";
}

TEST_F(SliderSettingTest, savingWithEqualEndsOfTheSliderPassesInfinityOn)
{
    auto slider = Read(Stored(5, 5, {Variable("tone", "gain", 0.0, 1.0)}));
    EffectList list = {Tone(1)};
    slider.SetValue(6);
    EXPECT_TRUE(slider.SaveValue(list));
    EXPECT_THAT(log.Take(), ElementsAre("effect(tone).SetParameter(\"gain\", inf)"));
    slider.SetValue(5);
    EXPECT_TRUE(slider.SaveValue(list));
    EXPECT_THAT(log.Take(), ElementsAre(HasSubstr("nan")));
    EXPECT_EQ(Gain(list[0]), 1.0) << "the effect itself drops what is not finite";
}

TEST_F(SliderSettingTest, readsOnlyTheFirstVariable)
{
    auto slider = Read(Stored(
        0, 100, {Variable("tone", "gain", 0.0, 1.0), Variable("grain", "amount", 0.0, 1.0)}));
    EXPECT_TRUE(slider.LoadValue(EffectList{Tone(0.5)}));
    EXPECT_EQ(slider.Value(), 50);
    EXPECT_THAT(log.Take(), ElementsAre("effect(tone).GetParameter(\"gain\")"));
}

TEST_F(SliderSettingTest, writesEveryVariableInStoredOrder)
{
    auto slider =
        Read(Stored(0, 100,
                    {Variable("grain", "amount", 0.0, 1.0), Variable("tone", "bias", 1.0, 3.0),
                     Variable("tone", "gain", 0.0, 2.0)}));
    slider.SetValue(50);
    EffectList list = {Make("tone"), Make("grain")};
    EXPECT_TRUE(slider.SaveValue(list));
    EXPECT_THAT(log.Take(), ElementsAre("effect(grain).SetParameter(\"amount\", 0.5)",
                                        "effect(tone).SetParameter(\"bias\", 2)",
                                        "effect(tone).SetParameter(\"gain\", 1)"));
}

TEST_F(SliderSettingTest, savingReportsWhetherTheLastEffectWasThere)
{
    auto slider = Read(Stored(
        0, 100, {Variable("tone", "gain", 0.0, 2.0), Variable("grain", "amount", 0.0, 1.0)}));
    slider.SetValue(50);

    EffectList onlyLast = {Make("grain")};
    EXPECT_TRUE(slider.SaveValue(onlyLast));
    EXPECT_THAT(log.Take(), ElementsAre("effect(grain).SetParameter(\"amount\", 0.5)"));

    EffectList onlyFirst = {Make("tone")};
    EXPECT_FALSE(slider.SaveValue(onlyFirst));
    EXPECT_THAT(log.Take(), ElementsAre("effect(tone).SetParameter(\"gain\", 1)"));

    EffectList none;
    EXPECT_FALSE(slider.SaveValue(none));
}

TEST_F(SliderSettingTest, loadingWithoutTheEffectFailsAndChangesNothing)
{
    auto slider = Read(Stored(0, 100, {Variable("tone", "gain", 0.0, 2.0)}));
    slider.SetValue(30);
    EXPECT_FALSE(slider.LoadValue(EffectList{Make("grain")}));
    EXPECT_FALSE(slider.LoadValue(EffectList{nullptr}));
    EXPECT_FALSE(slider.LoadValue(Zorvik::Quindle::ConstEffectList()));
    EXPECT_EQ(slider.Value(), 30);
}

TEST_F(SliderSettingTest, drivesTheFirstEffectOfAnId)
{
    auto slider = Read(Stored(0, 100, {Variable("tone", "gain", 0.0, 2.0)}));
    slider.SetValue(100);
    EffectList list = {Tone(0.1), Tone(0.2)};
    slider.SaveValue(list);
    EXPECT_EQ(Gain(list[0]), 2.0);
    EXPECT_EQ(Gain(list[1]), 0.2);
}

TEST_F(SliderSettingTest, worksOnAPackagesOwnEffects)
{
    auto slider = Read(Stored(0, 100, {Variable("tone", "gain", 0.0, 2.0)}));
    Zorvik::Quindle::EffectsSettings package(1);
    package.Effects().push_back(Tone(1.5));
    IIntensitySetting& setting = slider;
    setting.LoadValue(package);
    EXPECT_EQ(slider.Value(), 75);
    slider.SetValue(10);
    setting.SaveValue(package);
    EXPECT_EQ(Gain(package.Effects()[0]), 0.2);
    EXPECT_EQ(package.GetBlendAmount(), 1) << "the blend is not its affair";
}

TEST_F(SliderSettingTest, listsItsEffectsInAscendingOrderOnce)
{
    const auto slider =
        Read(Stored(0, 100,
                    {Variable("tone", "gain", 0.0, 2.0), Variable("grain", "amount", 0.0, 1.0),
                     Variable("tone", "bias", 0.0, 1.0)}));
    EXPECT_THAT(slider.GetEffectIDs(), ElementsAre("grain", "tone"));
}

TEST_F(SliderSettingTest, equalityLooksAtEverythingButTitleAndStrictness)
{
    const auto variables =
        StoredList{Variable("tone", "gain", 0.0, 2.0), Variable("grain", "amount", 0.0, 1.0)};
    const auto stored = Stored(0, 100, variables);
    const auto slider = Read(stored);
    EXPECT_TRUE(slider == Read(stored));
    EXPECT_TRUE(slider == Read(StoredNode(stored).Set("title", "Other"))) << "title";
    EXPECT_TRUE(slider == Read(stored, true)) << "strictness";

    auto moved = Read(stored);
    moved.SetValue(1);
    EXPECT_FALSE(slider == moved) << "value";
    EXPECT_FALSE(slider == Read(Stored(1, 100, variables))) << "begin";
    EXPECT_FALSE(slider == Read(Stored(0, 101, variables))) << "end";
    EXPECT_FALSE(
        slider ==
        Read(StoredNode("other", {{"begin", 0.0}, {"end", 100.0}, {"variables", variables}})))
        << "effect ID";
    EXPECT_FALSE(slider == Read(Stored(0, 100,
                                       {Variable("grain", "amount", 0.0, 1.0),
                                        Variable("tone", "gain", 0.0, 2.0)})))
        << "order";
    EXPECT_FALSE(slider == Read(Stored(0, 100, {Variable("tone", "gain", 0.0, 2.0)}))) << "length";
    EXPECT_FALSE(slider == Read(Stored(0, 100,
                                       {Variable("tone", "gain", 0.0, 2.0),
                                        Variable("grain", "amount", 0.0, 0.5)})))
        << "a variable's end";
    EXPECT_FALSE(slider == Read(Stored(0, 100,
                                       {Variable("tone", "bias", 0.0, 2.0),
                                        Variable("grain", "amount", 0.0, 1.0)})))
        << "a variable's parameter";
}

TEST_F(SliderSettingTest, copiesAndClonesCarryEveryField)
{
    auto slider = Read(Stored(1, 9, {Variable("tone", "gain", 0.0, 2.0)}), true);
    slider.SetValue(4);
    SliderSetting assigned(false);
    assigned = slider;
    const auto clone = slider.Clone();
    for (const auto* copy : {static_cast<const SliderSetting*>(&assigned),
                             dynamic_cast<const SliderSetting*>(clone.get())}) {
        ASSERT_NE(copy, nullptr);
        EXPECT_TRUE(*copy == slider);
        EXPECT_EQ(copy->Title(), "Title");
        EXPECT_EQ(copy->EffectID(), "own");
        EffectList none;
        EXPECT_THROW(copy->SaveValue(none), std::invalid_argument) << "strictness is copied";
    }
    clone->SetValue(8);
    EXPECT_EQ(slider.Value(), 4);
}

TEST_F(SliderSettingTest, aMovedFromSettingKeepsEmptyStringsAndAnEmptyList)
{
    auto slider = Read(Stored(1, 9, {Variable("tone", "gain", 0.0, 2.0)}));
    SliderSetting taken(std::move(slider));
    EXPECT_EQ(taken.Title(), "Title");
    EXPECT_THAT(taken.GetEffectIDs(), ElementsAre("tone"));
    EXPECT_EQ(slider.Title(), "");
    EXPECT_EQ(slider.EffectID(), "");
    EXPECT_THAT(slider.GetEffectIDs(), IsEmpty());

    SliderSetting assigned(false);
    assigned = std::move(taken);
    EXPECT_EQ(assigned.Max(), 9);
    EXPECT_EQ(taken.Title(), "");
}
