// SPDX-License-Identifier: MIT
#include "ControllerFixture.h"

#include "Zorvik/Brassel/SerializerProperty.h"
#include "Zorvik/Exception.h"
#include "support/RecordingSerializer.h"

#include <QMetaMethod>

using namespace LumetraTest;
using testing::ElementsAre;
using testing::IsEmpty;
using Zorvik::Lumetra::LumetraPresets::IntensitySettingType;

namespace {

class ControllerStoredFormTest : public ControllerFixture
{
protected:
    static OpenController::Ptr Read(const StoredNode& node)
    {
        const auto controller = OpenController::Create();
        controller->Deserialize(node.ToSerializer("preset"));
        return controller;
    }
};

} // namespace

TEST_F(ControllerStoredFormTest, aFreshControllerHasItsDefaults)
{
    const auto preset = OpenController::Create();
    EXPECT_EQ(preset->GetRefCount(), 1U);
    EXPECT_FALSE(preset->IsApplied());
    EXPECT_FALSE(preset->m_committed);
    EXPECT_FALSE(preset->IsFavourite());
    EXPECT_FALSE(preset->IsPopular());
    EXPECT_FALSE(preset->m_groupEditable);
    EXPECT_THAT(preset->m_effectSettings.Effects(), IsEmpty());
    EXPECT_EQ(preset->m_effectSettings.GetInputCount(), 1U);
    EXPECT_THAT(preset->m_previewEffectSettings.Effects(), IsEmpty());
    EXPECT_EQ(preset->m_previewEffectSettings.GetInputCount(), 1U);
    EXPECT_EQ(preset->GetName(), "");
    EXPECT_EQ(preset->m_image, "");
    EXPECT_EQ(preset->m_group, "");
    EXPECT_EQ(preset->GetID(), "");
    EXPECT_EQ(preset->m_previewCropPolicy, 1);
    EXPECT_EQ(preset->m_previewFitPolicy, 0);
    EXPECT_EQ(preset->m_color.red, 0);
    EXPECT_EQ(preset->m_color.green, 0);
    EXPECT_EQ(preset->m_color.blue, 0);
    EXPECT_EQ(preset->m_color.alpha, 255);
    EXPECT_FALSE(preset->m_colorFlag);
    EXPECT_EQ(preset->m_intensitySetting, nullptr);
    EXPECT_THAT(preset->GetSettings(), IsEmpty());
    EXPECT_THAT(preset->GetSettingsDefault(), IsEmpty());
    EXPECT_EQ(preset->m_resetIndex, 0xFFFFFFFF);
    EXPECT_FALSE(preset->m_painting);
    EXPECT_FALSE(preset->m_waitApply);
    EXPECT_FALSE(preset->m_drawerLocked);
    EXPECT_EQ(preset->m_packageName, "Looks");
    EXPECT_EQ(preset->parent(), nullptr);
}

TEST_F(ControllerStoredFormTest, readsACataloguePreset)
{
    const auto preset = Read(
        {{"name", "Wärme"},
         {"id", "film.warm"},
         {"popular", true},
         {"image", "warm.png"},
         {"previewCropPolicy", 0},
         {"previewFitPolicy", 1},
         {"settings", StoredNode{{"effects", StoredList{Bench::Tone(1.5), Bench::Grain(0.5)}}}},
         {"settingsPreview", StoredNode{{"effects", StoredList{Bench::Tone(2)}}}}});
    EXPECT_EQ(preset->GetName(), "Wärme");
    EXPECT_EQ(preset->GetID(), "film.warm");
    EXPECT_TRUE(preset->IsPopular());
    EXPECT_EQ(preset->m_image, "warm.png");
    EXPECT_EQ(preset->m_previewCropPolicy, 0);
    EXPECT_EQ(preset->m_previewFitPolicy, 1);
    EXPECT_EQ(CallText(preset->m_effectSettings.Effects()),
              "[tone{gain: 1.5, bias: 0}, grain{amount: 0.5}]");
    EXPECT_EQ(CallText(preset->m_previewEffectSettings.Effects()), "[tone{gain: 2, bias: 0}]");
    EXPECT_EQ(preset->m_color.red, 18);
    EXPECT_EQ(preset->m_color.green, 33);
    EXPECT_EQ(preset->m_color.blue, 52);
    EXPECT_EQ(preset->m_color.alpha, 255);
}

TEST_F(ControllerStoredFormTest, readsAPresetThatTheUserStored)
{
    const auto preset =
        Read({{"name", "Mine"}, {"id", "{1}"}, {"effects", StoredList{Bench::Tone(1.5)}}});
    EXPECT_EQ(CallText(preset->m_effectSettings.Effects()), "[tone{gain: 1.5, bias: 0}]");
}

TEST_F(ControllerStoredFormTest, prefersTheSettingsNodeToInlineEffects)
{
    const auto preset = Read({{"effects", StoredList{Bench::Tone(9)}}, {"settings", StoredNode{}}});
    EXPECT_THAT(preset->m_effectSettings.Effects(), IsEmpty());
}

TEST_F(ControllerStoredFormTest, anEmptyNodeGivesTheDefaults)
{
    for (const auto& node : {StoredNode{}.ToSerializer(), Zorvik::Brassel::SerializerPtr()}) {
        const auto preset = OpenController::Create();
        preset->Deserialize(node);
        EXPECT_EQ(preset->GetName(), "");
        EXPECT_EQ(preset->GetID(), "");
        EXPECT_FALSE(preset->IsPopular());
        EXPECT_EQ(preset->m_previewCropPolicy, 1);
        EXPECT_EQ(preset->m_previewFitPolicy, 0);
        EXPECT_THAT(preset->m_effectSettings.Effects(), IsEmpty());
        EXPECT_EQ(preset->m_color.red, 18);
    }
}

TEST_F(ControllerStoredFormTest, aPresetWithoutAnIdIsIdentifiedByItsName)
{
    EXPECT_EQ(Read({{"name", "Warm"}})->GetID(), "Warm");
    EXPECT_EQ(Read({{"name", "Warm"}, {"id", ""}})->GetID(), "");
}

TEST_F(ControllerStoredFormTest, withoutAPreviewListTheMainEffectsAreSharedWithIt)
{
    const auto preset = Read(Bench::Preset("Warm", {Bench::Tone(1), Bench::Grain(0.5)}));
    EXPECT_EQ(preset->m_previewEffectSettings.Effects(), preset->m_effectSettings.Effects());
}

TEST_F(ControllerStoredFormTest, createsEachEffectByItsIdAndKeepsUnknownOnes)
{
    const auto preset = Read(
        {{"effects", StoredList{StoredNode{{"effect", StoredNode{{"id", "missing"}, {"x", 2.5}}}},
                                StoredNode{}}}});
    EXPECT_EQ(CallText(preset->m_effectSettings.Effects()),
              "[missing{id: \"missing\", x: 2.5}, {id: \"\"}]");
}

TEST_F(ControllerStoredFormTest, readingAgainReplacesTheListsAndLeavesTheRest)
{
    const auto preset = BuildAttached(
        Bench::Preset("Warm", {Bench::Tone(1), Bench::Grain(0.5)}, Bench::Blending(80)),
        BiasAndAmount());
    preset->SetFavourite(true);
    preset->SetApplied(true, false);
    preset->Deserialize(Bench::Preset("Other", {Bench::Tone(2)}).ToSerializer());
    EXPECT_EQ(preset->GetName(), "Other");
    EXPECT_EQ(CallText(preset->m_effectSettings.Effects()), "[tone{gain: 2, bias: 0}]");
    EXPECT_EQ(preset->m_previewEffectSettings.Effects().size(), 1U);
    EXPECT_TRUE(preset->IsFavourite());
    EXPECT_TRUE(preset->IsApplied());
    EXPECT_EQ(preset->m_group, "Film");
    EXPECT_EQ(preset->GetSettings().size(), 2U);
    EXPECT_EQ(preset->GetIntensity(), 80);
}

TEST_F(ControllerStoredFormTest, readsInOrderWithItsDefaults)
{
    const auto preset = OpenController::Create();
    const Zorvik::Brassel::ConstSerializerPtr node =
        RecordingSerializer::Wrap(log, StoredNode{{"name", "Warm"}}.ToSerializer("p"));
    preset->Deserialize(node);
    EXPECT_THAT(log.Take(),
                ElementsAre("read p/name, default \"\" -> \"Warm\"",
                            "read p/id, default \"Warm\" -> \"Warm\"",
                            "read p/popular, default false -> false",
                            "read p/image, default \"\" -> \"\"",
                            "read p/previewCropPolicy, default 1 -> 1",
                            "read p/previewFitPolicy, default 0 -> 0", "node p/settings -> none",
                            "collection p/effects -> none", "node p/settingsPreview -> none"));
}

TEST_F(ControllerStoredFormTest, writesItsKeysInOrderWithTheIntensityLast)
{
    const auto preset = Build(Bench::Preset("Warm", {Bench::Grain(0.5)}, Bench::Blending(80)));
    preset->Serialize(RecordingSerializer::Wrap(log, StoredNode{}.ToSerializer("p")));
    EXPECT_THAT(TakeHostCalls(),
                ElementsAre("write p/name = \"Warm\"", "write p/id = \"Warm\"",
                            "write p/popular = false", "create collection p/effects",
                            "add p/effects[0]", "create node p/effects[0]/effect",
                            "write p/effects[0]/effect/id = \"grain\"",
                            "write p/effects[0]/effect/amount = 0.5", "create node p/intensity",
                            "write p/intensity/type = 1", "create node p/intensity/blendSetting",
                            "write p/intensity/blendSetting/value = 80",
                            "write p/intensity/blendSetting/begin = 1",
                            "write p/intensity/blendSetting/end = 255"));
}

TEST_F(ControllerStoredFormTest, writesTheDefaultSliderValuesIntoTheEffects)
{
    const auto preset =
        Build(Bench::Preset("Soft", {Bench::Tone(1, 0.25), Bench::Grain(0.5)}), BiasAndAmount());
    auto moved = preset->GetSettings();
    moved[0].SetValue(90);
    preset->SetSettingsValues(moved);
    preset->GetEffectInfo(false);
    EXPECT_EQ(CallText(preset->m_effectSettings.Effects()),
              "[tone{gain: 1, bias: 0.9}, grain{amount: 0.5}]");

    const auto node = StoredNode{}.ToSerializer();
    preset->Serialize(node);
    const auto first = node->GetCollection("effects")->GetElement(0)->GetNode("effect");
    EXPECT_EQ(first->Get("bias", -1.0), 0.25);
    EXPECT_EQ(Values(preset->GetSettings()), (std::vector<int>{90, 50}))
        << "the current values stay";
}

TEST_F(ControllerStoredFormTest, aRoundTripKeepsNameIdPopularAndEffectsOnly)
{
    const auto preset =
        Build({{"name", "Warm"},
               {"id", "film.warm"},
               {"popular", true},
               {"image", "warm.png"},
               {"previewCropPolicy", 0},
               {"previewFitPolicy", 1},
               {"settings", StoredNode{{"effects", StoredList{Bench::Tone(1.5)}}}},
               {"settingsPreview", StoredNode{{"effects", StoredList{Bench::Tone(2)}}}}});
    const auto node = StoredNode{}.ToSerializer();
    preset->Serialize(node);
    const auto read = OpenController::Create();
    read->Deserialize(node);
    EXPECT_EQ(read->GetName(), "Warm");
    EXPECT_EQ(read->GetID(), "film.warm");
    EXPECT_TRUE(read->IsPopular());
    EXPECT_EQ(CallText(read->m_effectSettings.Effects()), "[tone{gain: 1.5, bias: 0}]");
    EXPECT_EQ(read->m_image, "");
    EXPECT_EQ(read->m_previewCropPolicy, 1);
    EXPECT_EQ(read->m_previewFitPolicy, 0);
    EXPECT_EQ(read->m_previewEffectSettings.Effects(), read->m_effectSettings.Effects());
}

TEST_F(ControllerStoredFormTest, aBlendingIntensityComesBackThroughItsStoredForm)
{
    const auto preset = Build(Bench::Preset("Warm", {Bench::Tone(1)}, Bench::Blending(80)));
    preset->SetIntensity(33, false);
    const auto node = StoredNode{}.ToSerializer();
    preset->Serialize(node);
    const auto read = OpenController::Create();
    read->Deserialize(node);
    read->InitIntensity(node->GetNode("intensity"));
    EXPECT_EQ(read->GetIntensity(), 33);
}

TEST_F(ControllerStoredFormTest, aSliderIntensityWritesItsSettingUnderItsClassId)
{
    const auto preset = Build(Bench::Preset("Soft", {Bench::Tone(1)}, Bench::GainSlider()));
    const auto tree = std::make_shared<Zorvik::Core::Property>("p");
    preset->Serialize(Zorvik::Brassel::SerializerProperty::Create(tree));
    const auto intensity = std::get<Zorvik::Core::Property::Ptr>(*tree->Find("intensity"));
    EXPECT_EQ(StoredText(*intensity),
              "{type: 2, sliderSetting: {title: \"\", begin: 0.0, end: 100.0, variables: "
              "[{effectID: \"tone\", setting: \"gain\", begin: 0.0, end: 2.0}]}}");
}

TEST_F(ControllerStoredFormTest, aPresetWithoutIntensityWritesTypeZero)
{
    for (const bool isInitialised : {false, true}) {
        const auto preset = OpenController::Create();
        if (isInitialised)
            preset->InitIntensity(nullptr);
        const auto node = StoredNode{}.ToSerializer();
        preset->Serialize(node);
        EXPECT_EQ(node->GetNode("intensity")->Get("type", -1), 0);
        EXPECT_EQ(node->GetNode("intensity")->GetKeys().front(), "type");
    }
}

// A host may show a preset without its intensity; what is stored must still read back.
TEST_F(ControllerStoredFormTest, writesTheTypeOfItsSettingWhateverTheControllerTells)
{
    /// A host's preset that hides its intensity.
    class Hiding : public OpenController
    {
    public:
        IntensitySettingType GetIntensitySettingType() const override
        {
            return IntensitySettingType::None;
        }
    };
    const boost::intrusive_ptr<Hiding> preset(new Hiding);
    preset->InitIntensity(Bench::Blending(80).ToSerializer());
    const auto node = StoredNode{}.ToSerializer();
    preset->Serialize(node);
    EXPECT_EQ(node->GetNode("intensity")->Get("type", -1), 1);

    const auto read = OpenController::Create();
    read->InitIntensity(node->GetNode("intensity"));
    EXPECT_EQ(read->GetIntensity(), 80);
}

TEST_F(ControllerStoredFormTest, passesTheSerializersRefusalOn)
{
    EXPECT_THROW(Read({{"name", 5}}), Zorvik::Exception);
    EXPECT_THROW(Read({{"effects", "none"}}), Zorvik::Exception);
}

TEST_F(ControllerStoredFormTest, hasAMetaObjectOfItsOwn)
{
    EXPECT_STREQ(
        Zorvik::Lumetra::LumetraPresets::EffectPresetControllerBase::staticMetaObject.className(),
        "Zorvik::Lumetra::LumetraPresets::EffectPresetControllerBase");
    const auto preset = OpenController::Create();
    const QMetaObject* meta = preset->metaObject();
    const int slot = meta->indexOfSlot("OnCoreDrawerLock(bool)");
    ASSERT_GE(slot, 0);
    EXPECT_EQ(meta->method(slot).access(), QMetaMethod::Private);
    EXPECT_STREQ(static_cast<const Zorvik::Brassel::ISerializable&>(*preset).GetClassId().c_str(),
                 "");
}
