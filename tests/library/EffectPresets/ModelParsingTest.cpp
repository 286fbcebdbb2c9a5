// SPDX-License-Identifier: MIT
#include "ModelFixture.h"

#include "Zorvik/Exception.h"

#include <QAbstractItemModelTester>

using namespace LumetraTest;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ModelParsingTest : public ModelFixture
{
};

} // namespace

TEST_F(ModelParsingTest, startsEmptyWithoutAParent)
{
    EXPECT_EQ(model.rowCount(QModelIndex()), 0);
    EXPECT_EQ(model.QObject::parent(), nullptr);
    EXPECT_STREQ(Model::staticMetaObject.className(),
                 "Zorvik::Lumetra::LumetraPresets::EffectPresetModel");
    EXPECT_EQ(factory.use_count(), 2) << "shared with the creator";
}

TEST_F(ModelParsingTest, asksEveryPresetInTheGivenOrder)
{
    ParseSliders({Slider("tone", "bias")});
    ParseGroup("Film",
               {Preset("Warm", {Tone(1.5, 0.25)}, Blending(80)), Preset("Bare", {Tone(1)})});
    EXPECT_THAT(TakeWithout({"effect("}),
                ElementsAre("factory.CreateController(\"\")", "preset().Deserialize(test/list[0])",
                            "preset(Warm).SetGroupInfo(\"Film\", false)",
                            "preset(Warm).InitDefaultSettings([tone=0])",
                            "preset(Warm).InitIntensity(test/list[0]/intensity)",
                            "factory.CreateController(\"\")", "preset().Deserialize(test/list[1])",
                            "preset(Bare).SetGroupInfo(\"Film\", false)",
                            "preset(Bare).InitDefaultSettings([tone=0])",
                            "preset(Bare).InitIntensity(none)"))
        << "and the views are told nothing";
}

TEST_F(ModelParsingTest, keepsGroupsAndPresetsInTheirOrder)
{
    ParseGroup("Film", {Preset("Warm", {}), Preset("Soft", {})});
    ParseGroup("Plain", {});
    ParseGroup("Film", {Preset("Bare", {})});
    EXPECT_THAT(Text({256}), ElementsAre("\"Film\"", "  \"Warm\"", "  \"Soft\"", "\"Plain\"",
                                         "\"Film\"", "  \"Bare\""));
}

TEST_F(ModelParsingTest, aGroupWithoutSettingsHasDefaults)
{
    ParseGroup("Film", {Preset("Warm", {})});
    EXPECT_THAT(Text({256, 257, 258}),
                ElementsAre("\"Film\" | false | \"\"", "  \"Warm\" | \"Warm\" | false"));
}

TEST_F(ModelParsingTest, readsAGroupsSettings)
{
    ParseGroup("Film", {}, {{"editable", true}, {"appStoreId", StoredNode{{"id", "store.1"}}}});
    EXPECT_THAT(Text({256, 257, 258}), ElementsAre("\"Film\" | true | \"store.1\""));
}

TEST_F(ModelParsingTest, aStoreNodeWithoutAnIdCountsAsNone)
{
    ParseGroup("Film", {}, {{"appStoreId", StoredNode{}}});
    EXPECT_THAT(Text({258}), ElementsAre("\"\""));
}

TEST_F(ModelParsingTest, takesTheKindFromThePresetElseFromItsGroup)
{
    ParseGroup("Film",
               {Preset("Own", {}).Set("controller", "progress"), Preset("Group's", {}),
                Preset("Empty", {}).Set("controller", "")},
               {{"controller", "photo"}});
    EXPECT_THAT(log.GetLines("factory."), ElementsAre("factory.CreateController(\"progress\")",
                                                      "factory.CreateController(\"photo\")",
                                                      "factory.CreateController(\"\")"));
}

TEST_F(ModelParsingTest, takesTheIntensityFromThePresetElseFromItsGroup)
{
    ParseGroup("Film", {Preset("Own", {Tone(1)}, Blending(80)), Preset("Group's", {Tone(1)})},
               {{"intensity", Blending(33)}});
    ParseGroup("Plain", {Preset("None", {Tone(1)})});
    EXPECT_THAT(log.GetLines("preset(Own).InitI"),
                ElementsAre("preset(Own).InitIntensity(test/list[0]/intensity)"));
    EXPECT_THAT(log.GetLines("preset(Group's).InitI"),
                ElementsAre("preset(Group's).InitIntensity(group/intensity)"));
    EXPECT_EQ(model.data(At(0, 0), 261), 80);
    EXPECT_EQ(model.data(At(0, 1), 261), 33);
    EXPECT_EQ(model.data(At(1, 0), 261), 0);
}

TEST_F(ModelParsingTest, defaultSlidersReachOnlyGroupsParsedAfterwards)
{
    ParseGroup("Before", {Preset("A", {Tone(1)})});
    ParseSliders({Slider("tone", "bias")});
    ParseGroup("After", {Preset("B", {Tone(1)})});
    EXPECT_EQ(Sliders(0, 0).size(), 0U);
    EXPECT_EQ(Sliders(1, 0).size(), 1U);
}

TEST_F(ModelParsingTest, parsingDefaultSlidersAgainReplacesThem)
{
    ParseSliders({Slider("tone", "bias"), Slider("tone", "gain")});
    ParseSliders({Slider("tone", "gain")});
    ParseGroup("Film", {Preset("A", {Tone(1)})});
    ASSERT_EQ(Sliders(0, 0).size(), 1U);
    EXPECT_EQ(Sliders(0, 0)[0].Title(), "gain");
    EXPECT_EQ(Sliders(0, 0)[0].EffectID(), "tone") << "an element's own name";
}

TEST_F(ModelParsingTest, anEmptyOrMissingCollectionEmptiesTheDefaultSliders)
{
    for (const bool isNull : {false, true}) {
        ParseSliders({Slider("tone", "bias")});
        if (isNull)
            model.ParseAdditionalInfo(Zorvik::Brassel::ConstCollectionPtr());
        else
            ParseSliders({});
        ParseGroup("Film", {Preset("A", {Tone(1)})});
        EXPECT_EQ(Sliders(model.rowCount(QModelIndex()) - 1, 0).size(), 0U);
    }
}

TEST_F(ModelParsingTest, aDefaultSliderIsNotStrict)
{
    ParseSliders({Slider("grain", "amount"), Slider("tone", "bias")});
    ParseGroup("Film", {Preset("A", {Tone(1)})});
    ASSERT_EQ(Sliders(0, 0).size(), 1U) << "the preset has no grain, and that is no error";
}

TEST_F(ModelParsingTest, aBrokenDefaultSliderThrowsAndKeepsThoseBeforeIt)
{
    EXPECT_THROW(
        ParseSliders({Slider("tone", "bias"), Slider("tone", "radius"), Slider("tone", "gain")}),
        std::invalid_argument);
    ParseGroup("Film", {Preset("A", {Tone(1)})});
    EXPECT_EQ(Sliders(0, 0).size(), 1U);
}

TEST_F(ModelParsingTest, nullArgumentsMeanNothingAndDefaults)
{
    model.ParseGroup("Film", nullptr, nullptr);
    EXPECT_THAT(Text({256, 257, 258}), ElementsAre("\"Film\" | false | \"\""));
    model.ParseGroup("Plain", StoredList{Preset("A", {})}.ToCollection(), nullptr);
    EXPECT_EQ(model.rowCount(Group(1)), 1);
    model.ParseAdditionalInfo(Zorvik::Brassel::ConstSerializerPtr());
    EXPECT_THAT(Text({256, 257}), ElementsAre("\"Film\" | false", "\"Plain\" | false",
                                              "  \"A\" | \"A\"", "\"User presets\" | true"));
}

TEST_F(ModelParsingTest, aFailingPresetLosesItsGroupAndLeavesEarlierOnes)
{
    ParseGroup("Film", {Preset("A", {})});
    EXPECT_THROW(
        ParseGroup("Broken", {Preset("B", {}), Preset("C", {}).Set("controller", "broken")}),
        std::runtime_error);
    EXPECT_THROW(ParseGroup("Broken", {StoredNode{{"name", 5}}}), Zorvik::Exception);
    EXPECT_THROW(ParseGroup("Broken", {}, {{"editable", "yes"}}), Zorvik::Exception);
    EXPECT_THAT(Text({256}), ElementsAre("\"Film\"", "  \"A\""));
}

TEST_F(ModelParsingTest, userPresetsFormAnEditableGroup)
{
    ParseUserData({{"UserPresets", StoredNode{{"items", StoredList{Preset("Mine", {Tone(1)})}}}}});
    EXPECT_THAT(Text({256, 257, 269}),
                ElementsAre("\"User presets\" | true | -", "  \"Mine\" | \"Mine\" | true"));
    EXPECT_THAT(TakeCalls(), ElementsAre("factory.CreateController(\"\")",
                                         "preset().Deserialize(user/UserPresets/items[0])",
                                         "preset(Mine).SetGroupInfo(\"User presets\", true)",
                                         "preset(Mine).InitDefaultSettings([])",
                                         "preset(Mine).InitIntensity(none)"));
}

TEST_F(ModelParsingTest, userPresetsMayStandAtTheTop)
{
    ParseUserData({{"items", StoredList{Preset("Mine", {})}}});
    EXPECT_THAT(Text({256}), ElementsAre("\"User presets\"", "  \"Mine\""));
}

TEST_F(ModelParsingTest, aUserPresetsNodeHidesThoseAtTheTop)
{
    ParseUserData({{"UserPresets", StoredNode{}}, {"items", StoredList{Preset("Top", {})}}});
    EXPECT_THAT(Text({256}), ElementsAre("\"User presets\""));
}

TEST_F(ModelParsingTest, withoutStoredPresetsTheUserGroupIsEmpty)
{
    ParseUserData();
    EXPECT_THAT(Text({256, 257}), ElementsAre("\"User presets\" | true"));
}

TEST_F(ModelParsingTest, userPresetsGetTheDefaultSliders)
{
    ParseSliders({Slider("tone", "bias")});
    ParseUserData({{"items", StoredList{Preset("Mine", {Tone(1, 0.75)})}}});
    EXPECT_EQ(Sliders(0, 0).at(0).Value(), 75);
}

TEST_F(ModelParsingTest, marksFavouritesByGroupAndId)
{
    ParseGroup("Film", {Preset("A", {}), Preset("B", {}), Preset("A", {})});
    ParseGroup("Plain", {Preset("A", {})});
    ParseUserData({{"items", StoredList{Preset("A", {})}},
                   {"Favourites", StoredList{StoredNode{{"group", "Film"}, {"id", "A"}},
                                             StoredNode{{"group", "User presets"}, {"id", "A"}},
                                             StoredNode{{"group", "plain"}, {"id", "A"}},
                                             StoredNode{{"group", "Plain"}},
                                             StoredNode{{"id", "A"}}, StoredNode{}}}});
    EXPECT_THAT(Text({256, 270}), ElementsAre("\"Film\" | -", "  \"A\" | true", "  \"B\" | false",
                                              "  \"A\" | true", "\"Plain\" | -", "  \"A\" | false",
                                              "\"User presets\" | -", "  \"A\" | true"));
}

TEST_F(ModelParsingTest, anEntryWithoutKeysMarksANamelessPresetOfANamelessGroup)
{
    ParseGroup("", {StoredNode{}});
    ParseUserData({{"Favourites", StoredList{StoredNode{}}}});
    EXPECT_EQ(model.data(At(0, 0), 270), true);
}

TEST_F(ModelParsingTest, favouritesMatchOnlyGroupsThatExist)
{
    ParseUserData({{"Favourites", StoredList{StoredNode{{"group", "Film"}, {"id", "A"}}}}});
    ParseGroup("Film", {Preset("A", {})});
    EXPECT_EQ(model.data(At(1, 0), 270), false);
}

TEST_F(ModelParsingTest, parsingUserDataTwiceAddsASecondGroup)
{
    ParseUserData({{"items", StoredList{Preset("One", {})}}});
    ParseUserData({{"items", StoredList{Preset("Two", {})}}});
    EXPECT_THAT(Text({256, 257}), ElementsAre("\"User presets\" | true", "  \"One\" | \"One\"",
                                              "\"User presets\" | true", "  \"Two\" | \"Two\""));
    EXPECT_EQ(model.GetUserPresetNames(), QStringList{QStringLiteral("One")})
        << "only the first is used";
}

TEST_F(ModelParsingTest, anOverrideOfParseGroupTakesPart)
{
    class Counting : public Model
    {
    public:
        using Model::Model;

        void ParseGroup(const std::string& groupName,
                        const Zorvik::Brassel::ConstCollectionPtr& items,
                        const Zorvik::Brassel::ConstSerializerPtr& groupSettings) override
        {
            names.push_back(groupName);
            Model::ParseGroup(groupName, items, groupSettings);
        }

        std::vector<std::string> names;
    };
    Counting counting(factory);
    counting.ParseAdditionalInfo(Zorvik::Brassel::ConstSerializerPtr(StoredNode{}.ToSerializer()));
    EXPECT_THAT(counting.names, ElementsAre("User presets"));
}

TEST_F(ModelParsingTest, spreadsTheResetIndexInOrderAndKeepsNoCopy)
{
    ParseGroup("Film", {Preset("A", {}), Preset("B", {})});
    ParseGroup("Plain", {Preset("C", {})});
    log.Clear();
    model.SetResetIndex(7);
    EXPECT_THAT(log.Take(), ElementsAre("preset(A).SetResetIndex(7)", "preset(B).SetResetIndex(7)",
                                        "preset(C).SetResetIndex(7)"));
    ParseGroup("Late", {Preset("D", {})});
    EXPECT_THAT(log.GetLines("preset(D).SetResetIndex"), IsEmpty());
}

TEST_F(ModelParsingTest, persistentIndexesStayGoodWhileGroupsAreAdded)
{
    ParseGroup("Film", {Preset("A", {}), Preset("B", {})});
    const QPersistentModelIndex group = Group(0);
    const QPersistentModelIndex preset = At(0, 1);
    for (int i = 0; i < 40; ++i)
        ParseGroup("More", {Preset("X", {})});
    EXPECT_EQ(group.data(256).toString(), QStringLiteral("Film"));
    EXPECT_EQ(preset.data(256).toString(), QStringLiteral("B"));
    EXPECT_EQ(IndexText(preset), "0/1");
}

TEST_F(ModelParsingTest, isAConsistentModelOnceFilled)
{
    FillAndAttach();
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::Warning);
    Set(At(0, 0), Model::AppliedRole, true);
}
