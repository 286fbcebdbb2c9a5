// SPDX-License-Identifier: MIT
#include "ModelFixture.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Brassel/SerializerProperty.h"
#include "Zorvik/Exception.h"
#include "support/RecordingSerializer.h"

#include <functional>
#include <utility>

using namespace LumetraTest;
using testing::ElementsAre;
using testing::IsEmpty;
using Zorvik::Brassel::ISerializable;
using Zorvik::Brassel::SerializerPtr;

namespace {

/// All roles that a user sees and that a store is to bring back.
const std::vector<int> StoredRoles = {256, 257, 261, 262, 263, 269, 270, 271};

/// A preset that acts while the model stores it or asks for its name.
class ActingController : public RecordingController
{
public:
    explicit ActingController(CallLog& log) : RecordingController(log, TestFactory::PackageName) {}

    /// Called with the references that hold the preset at that moment.
    std::function<void(unsigned references)> act;

    const std::string& GetName() const override
    {
        Act();
        return RecordingController::GetName();
    }

protected:
    void Serialize(const Zorvik::Brassel::SerializerPtr& node) const override
    {
        Act();
        RecordingController::Serialize(node);
    }

private:
    /// Runs `act` once, since that may come back here.
    void Act() const
    {
        if (act && !std::exchange(m_hasActed, true))
            act(GetRefCount());
    }

    mutable bool m_hasActed = false;
};

class ActingFactory : public TestFactory
{
public:
    explicit ActingFactory(CallLog& log) : TestFactory(log), m_log(log) {}

    PresetBench::ControllerPtr CreateController(const std::string& /*kind*/) override
    {
        made.emplace_back(new ActingController(m_log));
        return made.back();
    }

    std::vector<boost::intrusive_ptr<ActingController>> made;

private:
    CallLog& m_log;
};

class ModelStorageTest : public ModelFixture
{
protected:
    ModelStorageTest() { FillAndAttach(); }

    static SerializerPtr Store(const PresetBench& bench)
    {
        const auto node = StoredNode{}.ToSerializer("user");
        static_cast<const ISerializable&>(bench.model).Serialize(node);
        return node;
    }

    /// Starts the program again: the catalogue first, then the stored user data.
    static std::unique_ptr<PresetBench> Restart(const SerializerPtr& userData)
    {
        auto bench = std::make_unique<PresetBench>();
        bench->ParseSliders({Slider("tone", "bias"), Slider("grain", "amount")});
        bench->ParseGroup("Film", {Preset("Warm", {Tone(1.5, 0.25)}, Blending(80)),
                                   Preset("Soft", {Tone(1), Grain(0.5)}, GainSlider())});
        bench->ParseGroup("Plain", {Preset("Bare", {Tone(3)})});
        bench->model.ParseAdditionalInfo(Zorvik::Brassel::ConstSerializerPtr(userData));
        bench->Attach();
        return bench;
    }

    void Save(const QModelIndex& index, const char* name)
    {
        Set(index, Model::SaveAsUserPresetRole, QString::fromLatin1(name));
    }
};

} // namespace

TEST_F(ModelStorageTest, anEmptyUserGroupIsWrittenAsEmptyCollections)
{
    EXPECT_EQ(StoredUserData(), "{UserPresets: {items: []}, Favourites: []}");
}

TEST_F(ModelStorageTest, writesPresetsThenFavouritesInOrder)
{
    Save(At(1, 0), "Mine");
    Set(At(1, 0), Model::FavouriteRole, true);
    Set(At(0, 1), Model::FavouriteRole, true);
    log.Clear();
    static_cast<const ISerializable&>(model).Serialize(
        RecordingSerializer::Wrap(log, StoredNode{}.ToSerializer("u")));
    const std::string id = model.data(At(2, 0), 257).toString().toStdString();
    EXPECT_THAT(
        TakeWithout({"effect(", "preset("}),
        ElementsAre("create node u/UserPresets", "create collection u/UserPresets/items",
                    "add u/UserPresets/items[0]", "write u/UserPresets/items[0]/name = \"Mine\"",
                    "write u/UserPresets/items[0]/id = \"" + id + "\"",
                    "write u/UserPresets/items[0]/popular = false",
                    "create collection u/UserPresets/items[0]/effects",
                    "add u/UserPresets/items[0]/effects[0]",
                    "create node u/UserPresets/items[0]/effects[0]/effect",
                    "write u/UserPresets/items[0]/effects[0]/effect/id = \"tone\"",
                    "write u/UserPresets/items[0]/effects[0]/effect/gain = 3",
                    "write u/UserPresets/items[0]/effects[0]/effect/bias = 0",
                    "create node u/UserPresets/items[0]/intensity",
                    "write u/UserPresets/items[0]/intensity/type = 0",
                    "create node u/UserPresets/items[0]/intensity/intensityNone",
                    "create collection u/Favourites", "add u/Favourites[0]",
                    "write u/Favourites[0]/group = \"Film\"", "write u/Favourites[0]/id = \"Soft\"",
                    "add u/Favourites[1]", "write u/Favourites[1]/group = \"Plain\"",
                    "write u/Favourites[1]/id = \"Bare\""));
}

TEST_F(ModelStorageTest, catalogueGroupsAreNeverWritten)
{
    EXPECT_EQ(StoredUserData().find("Warm"), std::string::npos);
    Set(At(0, 0), Model::PresetNameRole, QStringLiteral("Renamed"));
    EXPECT_EQ(StoredUserData().find("Renamed"), std::string::npos);
}

// An intensity of the slider kind is in no stored form: it is read back from the effects.
TEST_F(ModelStorageTest, aRestartBringsPresetsAndFavouritesBack)
{
    Save(At(0, 0), "Mine");
    Save(At(1, 0), "Yours");
    Save(At(0, 1), "Smooth");
    Set(At(2, 1), Model::PresetNameRole, QStringLiteral("Theirs"));
    Set(At(2, 0), Model::IntensityRole, 33);
    Set(At(2, 0), Model::FavouriteRole, true);
    Set(At(0, 0), Model::FavouriteRole, true);
    const auto before = Text(StoredRoles);
    const auto restarted = Restart(Store(*this));
    EXPECT_EQ(ModelText(restarted->model, StoredRoles), before);
    EXPECT_EQ(StoredText(static_cast<const ISerializable&>(restarted->model)), StoredUserData());
}

// Two things do not come back: applied presets, and tuned sliders of presets that were not saved.
TEST_F(ModelStorageTest, aRestartForgetsWhatWasAppliedAndTuned)
{
    Save(At(0, 1), "Mine");
    auto sliders = Sliders(2, 0);
    sliders.at(1).SetValue(90);
    Set(At(2, 0), Model::SettingsValuesRole, QVariant::fromValue(sliders));
    Set(At(2, 0), Model::AppliedRole, true);
    const auto restarted = Restart(Store(*this));
    const QModelIndex mine = restarted->At(2, 0);
    EXPECT_EQ(restarted->model.data(mine, 258), false);
    const auto values = restarted->model.data(mine, 266).value<SliderSetting::List>();
    EXPECT_EQ(values.at(1).Value(), 50) << "the default went into the stored effects";
}

TEST_F(ModelStorageTest, aSavedPresetBringsItsTunedSlidersBack)
{
    auto sliders = Sliders(0, 1);
    sliders.at(1).SetValue(90);
    Set(At(0, 1), Model::SettingsValuesRole, QVariant::fromValue(sliders));
    Save(At(0, 1), "Mine");
    const auto restarted = Restart(Store(*this));
    const auto values =
        restarted->model.data(restarted->At(2, 0), 266).value<SliderSetting::List>();
    EXPECT_EQ(values.at(1).Value(), 90);
}

TEST_F(ModelStorageTest, removedPresetsAreGoneAfterARestart)
{
    Save(At(0, 0), "One");
    Save(At(0, 0), "Two");
    model.removeRows(0, 1, Group(2));
    const auto restarted = Restart(Store(*this));
    EXPECT_EQ(restarted->model.GetUserPresetNames(), QStringList{QStringLiteral("Two")});
}

TEST_F(ModelStorageTest, aFavouriteOfARenamedGroupIsLost)
{
    Set(At(0, 0), Model::FavouriteRole, true);
    PresetBench bench;
    bench.ParseGroup("Films", {Preset("Warm", {Tone(1)})});
    bench.model.ParseAdditionalInfo(Zorvik::Brassel::ConstSerializerPtr(Store(*this)));
    EXPECT_EQ(bench.model.data(bench.At(0, 0), 270), false);
}

TEST_F(ModelStorageTest, presetsOfOneIdShareTheirMarkAfterARestart)
{
    PresetBench twins;
    const StoredList presets{Preset("A", {}), Preset("A", {})};
    twins.ParseGroup("Film", presets);
    twins.ParseUserData();
    twins.Set(twins.At(0, 1), Model::FavouriteRole, true);
    EXPECT_EQ(twins.model.data(twins.At(0, 0), 270), false);

    PresetBench read;
    read.ParseGroup("Film", presets);
    read.model.ParseAdditionalInfo(Zorvik::Brassel::ConstSerializerPtr(Store(twins)));
    EXPECT_EQ(read.model.data(read.At(0, 0), 270), true);
    EXPECT_EQ(read.model.data(read.At(0, 1), 270), true);
}

TEST_F(ModelStorageTest, anEmptyStoreGivesAnEmptyEditableGroup)
{
    const auto restarted = Restart(Store(*this));
    EXPECT_EQ(restarted->model.data(restarted->Group(2), 256), QStringLiteral("User presets"));
    EXPECT_EQ(restarted->model.data(restarted->Group(2), 257), true);
    EXPECT_EQ(restarted->model.rowCount(restarted->Group(2)), 0);
    EXPECT_EQ(restarted->model.GetUserPresetNames(), QStringList());
}

TEST_F(ModelStorageTest, presetsWithEffectsOfMissingPlugInsSurvive)
{
    const StoredNode effect{{"id", "missing"}, {"x", 2.5}, {"table", StoredNode{{"a", "b"}}}};
    PresetBench bench;
    bench.ParseUserData({{"items", StoredList{StoredNode{
                                       {"name", "Mine"},
                                       {"id", "{1}"},
                                       {"effects", StoredList{StoredNode{{"effect", effect}}}}}}}});
    EXPECT_EQ(bench.StoredUserData(),
              "{UserPresets: {items: [{name: \"Mine\", id: \"{1}\", popular: false, effects: "
              "[{effect: {id: \"missing\", x: 2.5, table: {a: \"b\"}}}], intensity: {type: 0, "
              "intensityNone: {}}}]}, Favourites: []}");
}

TEST_F(ModelStorageTest, namesTheUsersPresetsInOrderWithDuplicates)
{
    Save(At(0, 0), "B");
    Save(At(0, 0), "A");
    Save(At(0, 0), "B");
    EXPECT_EQ(model.GetUserPresetNames().join(QLatin1Char(' ')), QStringLiteral("B A B"));
    Set(At(2, 0), Model::PresetNameRole, QStringLiteral("\u00c4"));
    EXPECT_EQ(model.GetUserPresetNames().first(), QStringLiteral("\u00c4"));
}

TEST_F(ModelStorageTest, withoutAnEditableGroupStoringThrowsAfterTheEmptyNode)
{
    PresetBench bench;
    bench.ParseGroup("Film", {Preset("Warm", {Tone(1)})});
    const auto tree = std::make_shared<Zorvik::Core::Property>("user");
    try {
        static_cast<const ISerializable&>(bench.model)
            .Serialize(Zorvik::Brassel::SerializerProperty::Create(tree));
        FAIL();
    } catch (const Zorvik::Exception& error) {
        EXPECT_STREQ(error.what(), "User preset group not found.");
        EXPECT_EQ(error.GetFile(), "EffectPresets/EffectPresetModel");
        EXPECT_EQ(error.GetLine(), 462);
        EXPECT_NE(error.GetFunction().find("GetCustomGroup() const"), std::string::npos)
            << error.GetFunction();
    }
    EXPECT_EQ(StoredText(*tree), "{UserPresets: {items: []}}");
    EXPECT_THROW(bench.model.GetUserPresetNames(), Zorvik::Exception);
}

// Actions of a preset while it is stored or asked may reach the host, which may drop the preset.
TEST_F(ModelStorageTest, holdsEachPresetWhileItIsStoredOrNamed)
{
    for (const bool isStored : {true, false}) {
        const auto acting = std::make_shared<ActingFactory>(log);
        Model own(acting);
        own.ParseAdditionalInfo(Zorvik::Brassel::ConstSerializerPtr(
            StoredNode{{"items", StoredList{Preset("A", {})}}}.ToSerializer()));
        unsigned seen = 0;
        acting->made[0]->act = [&seen](unsigned references) { seen = references; };
        if (isStored)
            static_cast<const ISerializable&>(own).Serialize(StoredNode{}.ToSerializer());
        else
            own.GetUserPresetNames();
        EXPECT_EQ(seen, 3U) << "the test, the row and the loop hold it";
    }
}

TEST_F(ModelStorageTest, rowsThatAPresetRemovesWhileItIsStoredOrNamedAreNotVisited)
{
    for (const bool isStored : {true, false}) {
        const auto acting = std::make_shared<ActingFactory>(log);
        Model own(acting);
        own.ParseAdditionalInfo(Zorvik::Brassel::ConstSerializerPtr(StoredNode{
            {"items", StoredList{Preset("A", {}), Preset("B", {}),
                                 Preset("C", {})}}}.ToSerializer()));
        acting->made[0]->act = [&own](unsigned) {
            own.removeRows(1, 2, own.index(0, 0, QModelIndex()));
        };
        const auto stored = StoredNode{}.ToSerializer();
        if (isStored) {
            static_cast<const ISerializable&>(own).Serialize(stored);
            EXPECT_EQ(stored->GetNode("UserPresets")->GetCollection("items")->GetCount(), 1U);
        } else {
            EXPECT_EQ(own.GetUserPresetNames(), QStringList{QStringLiteral("A")});
        }
    }
}

TEST_F(ModelStorageTest, looksForTheUserGroupByItsFlagNotByItsName)
{
    PresetBench bench;
    bench.ParseGroup("User presets", {Preset("Not mine", {})});
    bench.ParseGroup("Editable", {Preset("Mine", {})}, {{"editable", true}});
    EXPECT_EQ(bench.model.GetUserPresetNames(), QStringList{QStringLiteral("Mine")});
}

TEST_F(ModelStorageTest, deserializeDoesNothing)
{
    Save(At(0, 0), "Mine");
    const auto before = Text(StoredRoles);
    log.Clear();
    static_cast<ISerializable&>(model).Deserialize(
        StoredNode{{"items", StoredList{Preset("X", {})}}}.ToSerializer());
    static_cast<ISerializable&>(model).Deserialize(nullptr);
    EXPECT_EQ(Text(StoredRoles), before);
    EXPECT_THAT(log.Take(), IsEmpty());
    EXPECT_EQ(static_cast<const ISerializable&>(model).GetClassId(), "");
}

TEST_F(ModelStorageTest, storingLeavesTheModelAsItIs)
{
    Save(At(0, 1), "Mine");
    Set(At(0, 0), Model::AppliedRole, true);
    const auto before = Text({256, 257, 258, 261, 270});
    log.Clear();
    Store(*this);
    EXPECT_EQ(Text({256, 257, 258, 261, 270}), before);
    EXPECT_THAT(log.GetLines("model."), IsEmpty());
}
