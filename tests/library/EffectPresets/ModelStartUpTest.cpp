// SPDX-License-Identifier: MIT
// A start of the program, compared with the complete log: what is read, questions to the factory
// and the presets, values for the effects, and calls to the host.
#include "ModelFixture.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "support/RecordingCollection.h"
#include "support/RecordingSerializer.h"

using namespace LumetraTest;
using Zorvik::Brassel::ConstCollectionPtr;
using Zorvik::Brassel::ConstSerializerPtr;

namespace {

class ModelStartUpTest : public ModelFixture
{
protected:
    ConstCollectionPtr Recorded(const StoredList& list)
    {
        return RecordingCollection::Wrap(log, ConstCollectionPtr(list.ToCollection()));
    }

    ConstSerializerPtr Recorded(const StoredNode& node, const std::string& path)
    {
        return RecordingSerializer::Wrap(log, ConstSerializerPtr(node.ToSerializer(path)));
    }
};

} // namespace

TEST_F(ModelStartUpTest, readsTheDefaultSliders)
{
    model.ParseAdditionalInfo(Recorded({Slider("tone", "bias"), Slider("grain", "amount")}));
    EXPECT_EQ(TakeText(), R"(
element test/list[0]
read test/list[0]/title, default "" -> "bias"
read test/list[0]/end, default 0 -> 100
read test/list[0]/begin, default 0 -> 0
collection test/list[0]/variables
element test/list[0]/variables[0]
read test/list[0]/variables[0]/effectID, default "tone" -> "tone"
read test/list[0]/variables[0]/setting, default "" -> "bias"
read test/list[0]/variables[0]/end, default 0 -> 1
read test/list[0]/variables[0]/begin, default 0 -> 0
element test/list[1]
read test/list[1]/title, default "" -> "amount"
read test/list[1]/end, default 0 -> 100
read test/list[1]/begin, default 0 -> 0
collection test/list[1]/variables
element test/list[1]/variables[0]
read test/list[1]/variables[0]/effectID, default "grain" -> "grain"
read test/list[1]/variables[0]/setting, default "" -> "amount"
read test/list[1]/variables[0]/end, default 0 -> 1
read test/list[1]/variables[0]/begin, default 0 -> 0
)");
}

TEST_F(ModelStartUpTest, readsAGroupThatHasEverything)
{
    ParseSliders({Slider("tone", "bias"), Slider("grain", "amount")});
    log.Clear();
    const auto own = Preset("Own", {Tone(1, 0.25), Grain(0.5)}, GainSlider())
                         .Set("settingsPreview", StoredNode{{"effects", StoredList{Grain(0.75)}}});
    model.ParseGroup("Film", Recorded({own, Preset("Group's", {Tone(2)})}),
                     Recorded(StoredNode{{"editable", true},
                                         {"controller", "photo"},
                                         {"appStoreId", StoredNode{{"id", "store.1"}}},
                                         {"intensity", Blending(33)}},
                              "group"));
    EXPECT_EQ(TakeText(), R"(
read group/editable, default false -> true
node group/appStoreId
read group/appStoreId/id, default "" -> "store.1"
read group/controller, default "" -> "photo"
element test/list[0]
read test/list[0]/controller, default "photo" -> "photo"
factory.CreateController("photo")
preset().Deserialize(test/list[0])
read test/list[0]/name, default "" -> "Own"
read test/list[0]/id, default "Own" -> "Own"
read test/list[0]/popular, default false -> false
read test/list[0]/image, default "" -> ""
read test/list[0]/previewCropPolicy, default 1 -> 1
read test/list[0]/previewFitPolicy, default 0 -> 0
node test/list[0]/settings
collection test/list[0]/settings/effects
element test/list[0]/settings/effects[0]
node test/list[0]/settings/effects[0]/effect
read test/list[0]/settings/effects[0]/effect/id, default "" -> "tone"
node test/list[0]/settings/effects[0]/effect
effect(tone).Deserialize()
read test/list[0]/settings/effects[0]/effect/gain, default 1 -> 1
read test/list[0]/settings/effects[0]/effect/bias, default 0 -> 0.25
element test/list[0]/settings/effects[1]
node test/list[0]/settings/effects[1]/effect
read test/list[0]/settings/effects[1]/effect/id, default "" -> "grain"
node test/list[0]/settings/effects[1]/effect
effect(grain).Deserialize()
read test/list[0]/settings/effects[1]/effect/amount, default 0 -> 0.5
node test/list[0]/settingsPreview
collection test/list[0]/settingsPreview/effects
element test/list[0]/settingsPreview/effects[0]
node test/list[0]/settingsPreview/effects[0]/effect
read test/list[0]/settingsPreview/effects[0]/effect/id, default "" -> "grain"
node test/list[0]/settingsPreview/effects[0]/effect
effect(grain).Deserialize()
read test/list[0]/settingsPreview/effects[0]/effect/amount, default 0 -> 0.75
preset(Own).SetGroupInfo("Film", true)
preset(Own).InitDefaultSettings([tone=0, grain=0])
effect(tone).GetParameter("bias")
effect(grain).GetParameter("amount")
node test/list[0]/intensity
preset(Own).InitIntensity(test/list[0]/intensity)
read test/list[0]/intensity/type, default 0 -> 2
node test/list[0]/intensity/sliderSetting
read test/list[0]/intensity/sliderSetting/title, default "" -> ""
read test/list[0]/intensity/sliderSetting/end, default 0 -> 100
read test/list[0]/intensity/sliderSetting/begin, default 0 -> 0
collection test/list[0]/intensity/sliderSetting/variables
element test/list[0]/intensity/sliderSetting/variables[0]
read test/list[0]/intensity/sliderSetting/variables[0]/effectID, default "sliderSetting" -> "tone"
read test/list[0]/intensity/sliderSetting/variables[0]/setting, default "" -> "gain"
read test/list[0]/intensity/sliderSetting/variables[0]/end, default 0 -> 2
read test/list[0]/intensity/sliderSetting/variables[0]/begin, default 0 -> 0
effect(tone).GetParameter("gain")
element test/list[1]
read test/list[1]/controller, default "photo" -> "photo"
factory.CreateController("photo")
preset().Deserialize(test/list[1])
read test/list[1]/name, default "" -> "Group's"
read test/list[1]/id, default "Group's" -> "Group's"
read test/list[1]/popular, default false -> false
read test/list[1]/image, default "" -> ""
read test/list[1]/previewCropPolicy, default 1 -> 1
read test/list[1]/previewFitPolicy, default 0 -> 0
node test/list[1]/settings
collection test/list[1]/settings/effects
element test/list[1]/settings/effects[0]
node test/list[1]/settings/effects[0]/effect
read test/list[1]/settings/effects[0]/effect/id, default "" -> "tone"
node test/list[1]/settings/effects[0]/effect
effect(tone).Deserialize()
read test/list[1]/settings/effects[0]/effect/gain, default 1 -> 2
read test/list[1]/settings/effects[0]/effect/bias, default 0 -> 0
node test/list[1]/settingsPreview -> none
preset(Group's).SetGroupInfo("Film", true)
preset(Group's).InitDefaultSettings([tone=0, grain=0])
effect(tone).GetParameter("bias")
node group/intensity
preset(Group's).InitIntensity(group/intensity)
read group/intensity/type, default 0 -> 1
node group/intensity/blendSetting
read group/intensity/blendSetting/value, default 255 -> 33
read group/intensity/blendSetting/begin, default 1 -> 1
read group/intensity/blendSetting/end, default 255 -> 255
)");
}

TEST_F(ModelStartUpTest, readsTheUsersPresetsAndFavourites)
{
    ParseGroup("Film", {Preset("Warm", {Tone(1)}), Preset("Soft", {Tone(1)})});
    log.Clear();
    const StoredNode mine{{"name", "Mine"},
                          {"id", "{1}"},
                          {"popular", false},
                          {"effects", StoredList{Tone(1.5)}},
                          {"intensity", Blending(40)}};
    model.ParseAdditionalInfo(Recorded(
        StoredNode{{"UserPresets", StoredNode{{"items", StoredList{mine}}}},
                   {"Favourites", StoredList{StoredNode{{"group", "User presets"}, {"id", "{1}"}},
                                             StoredNode{{"group", "Film"}, {"id", "Soft"}},
                                             StoredNode{{"group", "Film"}, {"id", "Gone"}}}}},
        "user"));
    EXPECT_EQ(TakeText(), R"(
node user/UserPresets
collection user/UserPresets/items
element user/UserPresets/items[0]
read user/UserPresets/items[0]/controller, default "" -> ""
factory.CreateController("")
preset().Deserialize(user/UserPresets/items[0])
read user/UserPresets/items[0]/name, default "" -> "Mine"
read user/UserPresets/items[0]/id, default "Mine" -> "{1}"
read user/UserPresets/items[0]/popular, default false -> false
read user/UserPresets/items[0]/image, default "" -> ""
read user/UserPresets/items[0]/previewCropPolicy, default 1 -> 1
read user/UserPresets/items[0]/previewFitPolicy, default 0 -> 0
node user/UserPresets/items[0]/settings -> none
collection user/UserPresets/items[0]/effects
element user/UserPresets/items[0]/effects[0]
node user/UserPresets/items[0]/effects[0]/effect
read user/UserPresets/items[0]/effects[0]/effect/id, default "" -> "tone"
node user/UserPresets/items[0]/effects[0]/effect
effect(tone).Deserialize()
read user/UserPresets/items[0]/effects[0]/effect/gain, default 1 -> 1.5
read user/UserPresets/items[0]/effects[0]/effect/bias, default 0 -> 0
node user/UserPresets/items[0]/settingsPreview -> none
preset(Mine).SetGroupInfo("User presets", true)
preset(Mine).InitDefaultSettings([])
node user/UserPresets/items[0]/intensity
preset(Mine).InitIntensity(user/UserPresets/items[0]/intensity)
read user/UserPresets/items[0]/intensity/type, default 0 -> 1
node user/UserPresets/items[0]/intensity/blendSetting
read user/UserPresets/items[0]/intensity/blendSetting/value, default 255 -> 40
read user/UserPresets/items[0]/intensity/blendSetting/begin, default 1 -> 1
read user/UserPresets/items[0]/intensity/blendSetting/end, default 255 -> 255
collection user/Favourites
element user/Favourites[0]
read user/Favourites[0]/group, default "" -> "User presets"
read user/Favourites[0]/id, default "" -> "{1}"
preset(Mine).SetFavourite(true)
element user/Favourites[1]
read user/Favourites[1]/group, default "" -> "Film"
read user/Favourites[1]/id, default "" -> "Soft"
preset(Soft).SetFavourite(true)
element user/Favourites[2]
read user/Favourites[2]/group, default "" -> "Film"
read user/Favourites[2]/id, default "" -> "Gone"
)");
}

TEST_F(ModelStartUpTest, attachesAndRegistersThePresets)
{
    ParseGroup("Film", {Preset("Warm", {Tone(1.5)}, Blending(80))},
               {{"appStoreId", StoredNode{{"id", "store.1"}}}});
    ParseUserData();
    log.Clear();
    Attach();
    EXPECT_EQ(TakeText(), R"(
preset(Warm).SetWorkspaceController(workspace)
model.dataChanged(-, -, [])
registry.RegisterPresets([("Warm", "store.1")])
)");
}

TEST_F(ModelStartUpTest, readsUserDataASecondTime)
{
    ParseGroup("Film", {Preset("Warm", {Tone(1)})});
    ParseUserData({{"items", StoredList{Preset("One", {Tone(1)})}}});
    Attach();
    log.Clear();
    model.ParseAdditionalInfo(
        Recorded(StoredNode{{"items", StoredList{Preset("Two", {Tone(2)})}},
                            {"Favourites",
                             StoredList{StoredNode{{"group", "User presets"}, {"id", "One"}}}}},
                 "user"));
    EXPECT_EQ(TakeText(), R"(
collection user/items
element user/items[0]
read user/items[0]/controller, default "" -> ""
factory.CreateController("")
preset().Deserialize(user/items[0])
read user/items[0]/name, default "" -> "Two"
read user/items[0]/id, default "Two" -> "Two"
read user/items[0]/popular, default false -> false
read user/items[0]/image, default "" -> ""
read user/items[0]/previewCropPolicy, default 1 -> 1
read user/items[0]/previewFitPolicy, default 0 -> 0
node user/items[0]/settings
collection user/items[0]/settings/effects
element user/items[0]/settings/effects[0]
node user/items[0]/settings/effects[0]/effect
read user/items[0]/settings/effects[0]/effect/id, default "" -> "tone"
node user/items[0]/settings/effects[0]/effect
effect(tone).Deserialize()
read user/items[0]/settings/effects[0]/effect/gain, default 1 -> 2
read user/items[0]/settings/effects[0]/effect/bias, default 0 -> 0
node user/items[0]/settingsPreview -> none
preset(Two).SetGroupInfo("User presets", true)
preset(Two).InitDefaultSettings([])
preset(Two).InitIntensity(none)
collection user/Favourites
element user/Favourites[0]
read user/Favourites[0]/group, default "" -> "User presets"
read user/Favourites[0]/id, default "" -> "One"
preset(One).SetFavourite(true)
statistics.SendEvent("favourite add", {effectGroup: "User presets", effectName: "One"})
)") << "the mark is set with the workspace attached, so it sends its event";

    Set(At(0, 0), Model::SaveAsUserPresetRole, QStringLiteral("New"));
    EXPECT_EQ(TakeText(), R"(
factory.CopyController("Warm")
effect(tone).Clone()
effect(tone).Clone()
preset(Warm).SetName("New")
preset(New).SetWorkspaceController(workspace)
preset(New).SetGroupInfo("User presets", true)
model.dataChanged(1/1, 1/1, [268])
)") << "saved into the first of the two";
}

// The thumbnail's effects are the preview list's alone; sliders and intensity are the photo's.
TEST_F(ModelStartUpTest, aPreviewListOfItsOwnHasNoPartInSlidersAndIntensity)
{
    ParseSliders({Slider("tone", "bias"), Slider("grain", "amount")});
    ParseGroup("Film",
               {Preset("Own", {Tone(1.5, 0.25)}, GainSlider())
                    .Set("settingsPreview",
                         StoredNode{{"effects", StoredList{Tone(0.25, 0.75), Grain(0.5)}}})});
    Attach();
    log.Clear();
    EXPECT_EQ(model.data(At(0, 0), Model::IntensityRole), 75);
    ASSERT_EQ(Sliders(0, 0).size(), 1U) << "the grain is only in the preview";
    EXPECT_EQ(Sliders(0, 0)[0].Value(), 25);
    Set(At(0, 0), Model::AppliedRole, true);
    Set(At(0, 0), Model::IntensityRole, 50);
    Set(At(0, 0), Model::TuneRole, 0);
    Set(At(0, 0), Model::ResetRole, QVariant());
    EXPECT_EQ(TakeText(), R"(
preset(Own).SetApplied(true, true)
effect(tone).SetParameter("bias", 0.25)
drawer.GetPackage(none)
drawer.GetDefaultPackageIndex()
effect(tone).SetParameter("gain", 1.5)
drawer.ApplyEffect([tone{gain: 1.5, bias: 0.25}] in Looks/Own #0 blend 1, {})
statistics.SendEvent("click", {effectGroup: "Film", effectName: "Own"})
model.dataChanged(0/0, 0/0, [258])
preset(Own).SetIntensity(50, true)
effect(tone).SetParameter("bias", 0.25)
effect(tone).SetParameter("gain", 1)
painter.StartPainting(OneInput Looks/Own restoring alpha)
painter.SetPositions(2147483647, 2147483647)
painter.UpdatePainting([tone{gain: 1, bias: 0.25}] in / #none blend 1, 0)
preset(Own).IntensityChangeEnd()
painter.FinishPainting(2147483647, 2147483647, false)
preset(Own).ResetSettingsValues()
preset(Own).SetSettingsValues([tone=25])
effect(tone).GetParameter("gain")
model.dataChanged(0/0, 0/0, [])
)");
    model.data(At(0, 0), Model::PreviewImageRole);
    EXPECT_EQ(TakeText(), R"(
preset(Own).GetPreviewImage()
drawer.RenderPreview(8x6 aspect 1, [tone{gain: 0.25, bias: 0.75}, grain{amount: 0.5}] in / #none blend 1, 1, 0, 0)
converter.ToDisplay(8x6)
)") << "the drag has not reached the preview's effects";
    EXPECT_EQ(model.data(At(0, 0), Model::IntensityRole), 50);
}
