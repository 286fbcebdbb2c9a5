// SPDX-License-Identifier: MIT
#include "SliderFixture.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Exception.h"
#include "support/RecordingSerializer.h"

#include <gmock/gmock.h>

using namespace LumetraTest;
using testing::ElementsAre;
using Zorvik::Lumetra::LumetraPresets::SliderSetting;

namespace {

class SliderSettingStoredFormTest : public SliderFixture
{
};

} // namespace

TEST_F(SliderSettingStoredFormTest, writesItsKeysInOrder)
{
    auto slider = Read(Stored(1, 99.5, {Variable("tone", "gain", 0.25, 2.0)}));
    slider.SetValue(40);
    slider.Serialize(RecordingSerializer::Wrap(log, StoredNode{}.ToSerializer()));
    EXPECT_THAT(log.Take(),
                ElementsAre("write test/title = \"Title\"", "write test/begin = 1",
                            "write test/end = 99.5", "create collection test/variables",
                            "add test/variables[0]", "write test/variables[0]/effectID = \"tone\"",
                            "write test/variables[0]/setting = \"gain\"",
                            "write test/variables[0]/begin = 0.25",
                            "write test/variables[0]/end = 2"));
}

TEST_F(SliderSettingStoredFormTest, writesAnEmptyCollectionAndNeitherValueNorName)
{
    auto slider = Read(StoredNode("own", {{"title", "T"}}));
    slider.SetValue(40);
    EXPECT_EQ(StoredText(slider), "{title: \"T\", begin: 0.0, end: 0.0, variables: []}");
}

TEST_F(SliderSettingStoredFormTest, readsItsKeysWithTheirDefaults)
{
    SliderSetting slider(false);
    const Zorvik::Brassel::ConstSerializerPtr node = RecordingSerializer::Wrap(
        log, StoredNode("tone", {{"variables", StoredList{StoredNode{{"setting", "gain"}}}}})
                 .ToSerializer());
    slider.Deserialize(node);
    EXPECT_THAT(log.Take(),
                ElementsAre("read test/title, default \"\" -> \"\"",
                            "read test/end, default 0 -> 0", "read test/begin, default 0 -> 0",
                            "collection test/variables", "element test/variables[0]",
                            "read test/variables[0]/effectID, default \"tone\" -> \"tone\"",
                            "read test/variables[0]/setting, default \"\" -> \"gain\"",
                            "read test/variables[0]/end, default 0 -> 0",
                            "read test/variables[0]/begin, default 0 -> 0"));
}

TEST_F(SliderSettingStoredFormTest, aRoundTripKeepsAllButValueAndName)
{
    auto slider = Read(Stored(
        1, 99.5, {Variable("tone", "gain", 0.25, 2.0), Variable("grain", "amount", 1.0, 0.0)}));
    slider.SetValue(40);
    const auto node = StoredNode("own", {}).ToSerializer();
    slider.Serialize(node);
    SliderSetting read(false);
    read.Deserialize(node);
    EXPECT_EQ(read.Value(), 0);
    read.SetValue(40);
    EXPECT_TRUE(read == slider);
    EXPECT_EQ(read.Title(), slider.Title());
}

TEST_F(SliderSettingStoredFormTest, takesItsEffectIdFromTheNodesName)
{
    EXPECT_EQ(Read(StoredNode("exposure", {})).EffectID(), "exposure");
    EXPECT_EQ(Read(StoredNode{}).EffectID(), "");
}

TEST_F(SliderSettingStoredFormTest, aVariableWithoutAnEffectBelongsToTheSlidersOwn)
{
    const auto slider = Read(StoredNode(
        "grain", {{"begin", 0.0},
                  {"end", 100.0},
                  {"variables", StoredList{StoredNode{{"setting", "amount"}, {"end", 1.0}},
                                           Variable("tone", "gain", 0.0, 1.0)}}}));
    EXPECT_THAT(slider.GetEffectIDs(), ElementsAre("grain", "tone"));
}

TEST_F(SliderSettingStoredFormTest, readingTwiceAppendsTheVariablesAgain)
{
    const auto node = Stored(0, 100, {Variable("tone", "gain", 0.0, 1.0)}).ToSerializer();
    SliderSetting slider(false);
    slider.Deserialize(node);
    slider.Deserialize(node);
    slider.SetValue(50);
    EffectList list = {Make("tone")};
    slider.SaveValue(list);
    EXPECT_THAT(log.Take(), ElementsAre("effect(tone).SetParameter(\"gain\", 0.5)",
                                        "effect(tone).SetParameter(\"gain\", 0.5)"));
}

TEST_F(SliderSettingStoredFormTest, readingAgainReplacesTitleAndRangeByTheirDefaults)
{
    SliderSetting slider(false);
    slider.Deserialize(Stored(3, 30, {}).ToSerializer());
    slider.SetValue(7);
    slider.Deserialize(StoredNode{}.ToSerializer());
    EXPECT_EQ(slider.Title(), "");
    EXPECT_EQ(slider.EffectID(), "");
    EXPECT_EQ(slider.Min(), 0);
    EXPECT_EQ(slider.Max(), 0);
    EXPECT_EQ(slider.Value(), 7) << "the value is no part of the stored form";
}

TEST_F(SliderSettingStoredFormTest, readingFromNothingGivesTheDefaults)
{
    SliderSetting slider(false);
    slider.Deserialize(nullptr);
    EXPECT_TRUE(slider == SliderSetting(false));
}

TEST_F(SliderSettingStoredFormTest, passesTheSerializersRefusalOn)
{
    SliderSetting slider(false);
    EXPECT_THROW(slider.Deserialize(StoredNode{{"begin", "low"}}.ToSerializer()),
                 Zorvik::Exception);
}
