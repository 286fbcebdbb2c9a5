// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/PresetController.h"

#include "EffectPresets/EffectPresetModel.h"
#include "Zorvik/Exception.h"
#include "Zorvik/Quindle/EffectSettingsImpl.h"
#include "core/PresetControllerFactory.h"
#include "storage/JsonDocument.h"
#include "support/CallLog.h"
#include "support/RecordingWorkspace.h"
#include "support/RegisteredEffects.h"

#include <QTemporaryFile>

#include <gmock/gmock.h>

using namespace LumetraPlugin;
using LumetraHost::JsonDocument;
using LumetraTest::CallLog;
using testing::ElementsAre;
using testing::HasSubstr;
using Zorvik::Lumetra::LumetraPresets::EffectPresetModel;
using Zorvik::Lumetra::LumetraPresets::SliderSetting;

namespace {

class PresetControllerTest : public testing::Test
{
protected:
    void SetUp() override
    {
        effects.Add({"tone", {{"gain", 0, 2, 1, ""}}, {}});
        const auto catalogue = JsonDocument::Parse(R"({
            "sliders": {"tone": {"title": "Gain", "begin": 0, "end": 100,
                "variables": [{"setting": "gain", "begin": 0, "end": 2}]}},
            "items": [
                {"name": "Blend", "intensity": {"type": 1, "blendSetting": {"value": 80}},
                    "effects": [{"effect": {"id": "tone", "gain": 0.5}}]},
                {"name": "Slide", "previewCropPolicy": 0, "previewFitPolicy": 1, "intensity": {"type": 2, "sliderSetting": {"end": 100,
                    "variables": [{"effectID": "tone", "setting": "gain", "end": 2}]}},
                    "effects": [{"effect": {"id": "tone", "gain": 0.5}}],
                    "settingsPreview": {"effects": []}}]})",
                                                   "test.json")
                                   .GetRoot();
        model.ParseAdditionalInfo(catalogue->GetCollection("sliders"));
        model.ParseGroup("Looks", catalogue->GetCollection("items"), nullptr);
        model.ParseAdditionalInfo(
            Zorvik::Brassel::ConstSerializerPtr(JsonDocument("user").GetRoot()));
        model.SetWorkspaceController(workspace);
        log.Clear();
    }

    QModelIndex Preset(int row) { return model.index(row, 0, model.index(0, 0)); }

    CallLog log;
    LumetraTest::RegisteredEffects effects{log};
    std::shared_ptr<LumetraTest::RecordingWorkspace> workspace =
        std::make_shared<LumetraTest::RecordingWorkspace>(log);
    std::shared_ptr<PresetControllerFactory> factory =
        std::make_shared<PresetControllerFactory>("Looks");
    EffectPresetModel model{factory};
};

std::string Event(const std::string& name)
{
    return "statistics.SendEvent(\"" + name +
           "\", {effectGroup: \"Looks\", effectName: \"Blend\"})";
}

} // namespace

TEST_F(PresetControllerTest, namesAllFiveStatisticsEvents)
{
    model.setData(Preset(0), true, EffectPresetModel::AppliedRole);
    model.setData(Preset(0), false, EffectPresetModel::AppliedRole);
    model.setData(Preset(0), true, EffectPresetModel::FavouriteRole);
    model.setData(Preset(0), false, EffectPresetModel::FavouriteRole);
    model.setData(Preset(0), true, EffectPresetModel::SaveChangesRole);

    EXPECT_THAT(log.GetLines("statistics."),
                ElementsAre(Event("presetClick"), Event("presetReset"), Event("presetFavouriteAdd"),
                            Event("presetFavouriteRemove"), Event("presetApply")));
}

TEST_F(PresetControllerTest, drawsAMovedSliderAtOnce)
{
    auto sliders =
        Preset(0).data(EffectPresetModel::SettingsValuesRole).value<SliderSetting::List>();
    ASSERT_EQ(sliders.size(), 1U);
    sliders[0].SetValue(75);

    model.setData(Preset(0), QVariant::fromValue(sliders), EffectPresetModel::SettingsValuesRole);

    ASSERT_EQ(log.GetLines("drawer.ApplyEffect").size(), 1U);
    EXPECT_THAT(log.GetLines("drawer.ApplyEffect")[0], HasSubstr("gain: 1.5}] in Looks/Blend"));
}

TEST_F(PresetControllerTest, previewsInTheSizeOfThePanelAtTheCurrentIntensity)
{
    factory->SetPreviewOptions({QSize(30, 20), false});
    model.setData(Preset(0), 100, EffectPresetModel::IntensityRole);
    log.Clear();

    const auto preview = Preset(0).data(EffectPresetModel::PreviewImageRole).value<QImage>();
    model.setData(Preset(0), 1, EffectPresetModel::IntensityRole);
    Preset(0).data(EffectPresetModel::PreviewImageRole);

    EXPECT_FALSE(preview.isNull());
    const auto calls = log.GetLines("drawer.RenderPreview");
    ASSERT_EQ(calls.size(), 2U);
    EXPECT_THAT(calls[0], HasSubstr("(30x20 aspect 1, [tone{id: \"tone\", gain: 0.5}]"));
    EXPECT_THAT(calls[0], HasSubstr("blend 1,"));
    EXPECT_THAT(calls[1], HasSubstr("blend 255,"));
}

TEST_F(PresetControllerTest, tellsWhoRendersHowThePreviewIsCut)
{
    LumetraHost::PreviewPolicies asked{-1, -1, 9};
    PreviewOptions options;
    options.isDraft = false;
    options.render = [&](const std::string&, const Zorvik::Proc::FrameTarget&,
                         const Zorvik::Quindle::EffectsSettings&,
                         const LumetraHost::PreviewPolicies& policies) {
        asked = policies;
        return Zorvik::Proc::Frame();
    };
    factory->SetPreviewOptions(options);

    Preset(1).data(EffectPresetModel::PreviewImageRole);
    EXPECT_EQ(asked.crop, 0);
    EXPECT_EQ(asked.fit, 1);
    EXPECT_EQ(asked.flags, 0U);

    Preset(0).data(EffectPresetModel::PreviewImageRole);
    EXPECT_EQ(asked.crop, 1);
    EXPECT_EQ(asked.fit, 0);
}

TEST_F(PresetControllerTest, previewsAListThatLacksTheSlidersEffect)
{
    model.setData(Preset(1), 10, EffectPresetModel::IntensityRole);

    EXPECT_NO_THROW(Preset(1).data(EffectPresetModel::PreviewImageRole));
    EXPECT_EQ(log.GetLines("drawer.RenderPreview").size(), 1U);
}

TEST_F(PresetControllerTest, staysWithoutEffectsWhenItsResourceDoesNotFit)
{
    effects.Add({"other", {{"gain", 0, 2, 1, ""}}, {}});
    const auto node = JsonDocument::Parse(R"({"name": "Later", "resource": "later.json",
        "intensity": {"type": 2, "sliderSetting": {"end": 100, "variables":
            [{"effectID": "tone", "setting": "gain", "end": 2}]}}})",
                                          "test.json")
                          .GetRoot();
    const auto controller = factory->CreateController("");
    static_cast<Zorvik::Brassel::ISerializable&>(*controller).Deserialize(node);
    controller->InitIntensity(node->GetNode("intensity"));
    QTemporaryFile resource;
    const auto handOver = [&](const char* content) {
        ASSERT_TRUE(resource.open() && resource.resize(0));
        resource.write(content);
        resource.close();
        controller->SetDownloadedResource(resource.fileName().toStdString());
    };

    EXPECT_THROW(handOver(R"({"effects": [{"effect": {"id": "other"}}]})"), Zorvik::Exception);
    EXPECT_TRUE(controller->IsDownloadable());
    EXPECT_TRUE(controller->GetEffectInfo(false).empty());

    handOver(R"({"effects": [{"effect": {"id": "tone", "gain": 1}}]})");
    EXPECT_FALSE(controller->IsDownloadable());
    EXPECT_EQ(controller->GetIntensity(), 50);
}

TEST_F(PresetControllerTest, needsEveryEffectThatItsIntensityMoves)
{
    effects.Add({"other", {{"gain", 0, 2, 1, ""}}, {}});
    const auto node = JsonDocument::Parse(R"({"name": "Half",
        "effects": [{"effect": {"id": "tone"}}],
        "intensity": {"type": 2, "sliderSetting": {"end": 100, "variables":
            [{"effectID": "tone", "setting": "gain", "end": 2},
             {"effectID": "other", "setting": "gain", "end": 2}]}}})",
                                          "test.json")
                          .GetRoot();
    const auto controller = factory->CreateController("");
    static_cast<Zorvik::Brassel::ISerializable&>(*controller).Deserialize(node);

    EXPECT_THROW(controller->InitIntensity(node->GetNode("intensity")), Zorvik::Exception);
}

TEST_F(PresetControllerTest, hasTheSlidersThatItListsInPlaceOfTheCatalogues)
{
    const auto node = JsonDocument::Parse(R"({"items": [{"name": "Own",
        "effects": [{"effect": {"id": "tone", "gain": 0.333}}],
        "sliders": [{"title": "Fine", "begin": 0, "end": 2000,
            "variables": [{"effectID": "tone", "setting": "gain", "begin": 0, "end": 2}]}]},
        {"name": "Bare", "effects": [{"effect": {"id": "tone", "gain": 0.333}}], "sliders": []}]})",
                                          "test.json")
                          .GetRoot();
    model.ParseGroup("Own", node->GetCollection("items"), nullptr);
    const auto slidersOf = [&](int row) {
        return model.index(row, 0, model.index(2, 0))
            .data(EffectPresetModel::SettingsValuesRole)
            .value<SliderSetting::List>();
    };

    ASSERT_EQ(slidersOf(0).size(), 1U);
    EXPECT_EQ(slidersOf(0)[0].Title(), "Fine");
    EXPECT_EQ(slidersOf(0)[0].Value(), 333);
    EXPECT_TRUE(slidersOf(1).empty());
}

TEST_F(PresetControllerTest, writesTheSlidersThatItListsAndReadsThemAgain)
{
    const auto node = JsonDocument::Parse(R"({"name": "Own",
        "effects": [{"effect": {"id": "tone", "gain": 0.333}}],
        "sliders": [{"title": "Fine", "begin": 0, "end": 2000,
            "variables": [{"effectID": "tone", "setting": "gain", "begin": 0, "end": 2}]}]})",
                                          "test.json")
                          .GetRoot();
    const auto read = [this](const Zorvik::Brassel::ConstSerializerPtr& from) {
        const auto controller = factory->CreateController("");
        static_cast<Zorvik::Brassel::ISerializable&>(*controller).Deserialize(from);
        controller->InitDefaultSettings({});
        return controller;
    };
    const auto first = read(node);
    JsonDocument written("written.json");
    static_cast<const Zorvik::Brassel::ISerializable&>(*factory->CopyController(first))
        .Serialize(written.GetRoot());

    const auto second = read(written.GetRoot());

    EXPECT_EQ(second->GetSettings(), first->GetSettings());
    ASSERT_EQ(second->GetSettings().size(), 1U);
    JsonDocument plain("plain.json");
    static_cast<const Zorvik::Brassel::ISerializable&>(*factory->CreateController(""))
        .Serialize(plain.GetRoot());
    EXPECT_FALSE(plain.GetRoot()->Has("sliders")) << "the catalogue's are not written";
}

TEST_F(PresetControllerTest, takesOtherEffectsAndStartsAtTheirFullIntensity)
{
    const auto controller = factory->CreateController("");
    auto& preset = dynamic_cast<PresetController&>(*controller);
    const auto node = JsonDocument::Parse(R"({"name": "Blend",
        "effects": [{"effect": {"id": "tone", "gain": 0.5}}],
        "sliders": [{"title": "Fine", "begin": 0, "end": 2000,
            "variables": [{"effectID": "tone", "setting": "gain", "begin": 0, "end": 2}]}],
        "intensity": {"type": 1, "blendSetting": {"value": 30}}})",
                                          "test.json")
                          .GetRoot();
    static_cast<Zorvik::Brassel::ISerializable&>(preset).Deserialize(node);
    preset.InitDefaultSettings({});
    preset.InitIntensity(node->GetNode("intensity"));
    const auto tone = Zorvik::Quindle::EffectSettingsImpl::Create("tone");
    tone->SetParameter("gain", 1.5);
    const auto second = tone->Clone();

    preset.SetIntensity(45, false);
    const auto putBack = preset.ReplaceEffects({tone, second});
    tone->SetParameter("gain", 0);

    EXPECT_EQ(preset.MakeSettings().Effects().size(), 2U);
    EXPECT_EQ(preset.MakeSettings().Effects()[0]->GetParameter("gain"), 1.5);
    EXPECT_EQ(preset.GetSettings().at(0).Value(), 1500);
    EXPECT_EQ(preset.GetIntensity(), 100);
    EXPECT_EQ(preset.GetStartIntensity(), 100);

    putBack();

    EXPECT_EQ(preset.MakeSettings().Effects().size(), 1U);
    EXPECT_EQ(preset.MakeSettings().Effects()[0]->GetParameter("gain"), 0.5);
    EXPECT_EQ(preset.GetSettings().at(0).Value(), 500);
    EXPECT_EQ(preset.GetSettingsDefault().at(0).Value(), 500);
    EXPECT_EQ(preset.GetIntensity(), 45);
    EXPECT_EQ(preset.GetStartIntensity(), 30);
}

TEST_F(PresetControllerTest, keepsItsEffectsWhereOthersLackWhatItsIntensityMoves)
{
    const auto controller = factory->CreateController("");
    auto& preset = dynamic_cast<PresetController&>(*controller);
    const auto node = JsonDocument::Parse(R"({"name": "Slide",
        "effects": [{"effect": {"id": "tone", "gain": 0.5}}],
        "intensity": {"type": 2, "sliderSetting": {"end": 100,
            "variables": [{"effectID": "tone", "setting": "gain", "end": 2}]}}})",
                                          "test.json")
                          .GetRoot();
    static_cast<Zorvik::Brassel::ISerializable&>(preset).Deserialize(node);
    preset.InitIntensity(node->GetNode("intensity"));

    EXPECT_THROW(preset.ReplaceEffects({Zorvik::Quindle::EffectSettingsImpl::Create("grain")}),
                 Zorvik::Exception);

    EXPECT_EQ(preset.MakeSettings().Effects().at(0)->GetParameter("gain"), 0.5);
}

TEST_F(PresetControllerTest, isCopiedAsWhatItIs)
{
    class OwnController : public PresetController
    {
    public:
        using PresetController::PresetController;
        boost::intrusive_ptr<PresetController> Copy() const override
        {
            return new OwnController(*this);
        }
    };
    const boost::intrusive_ptr<OwnController> own(
        new OwnController("Looks", std::make_shared<PreviewOptions>()));

    const auto copy = factory->CopyController(own);

    EXPECT_NE(dynamic_cast<const OwnController*>(copy.get()), nullptr);
    EXPECT_NE(copy.get(), own.get());
}

TEST(PresetControllerFactory, makesItsKindsAndNamesThemWhenAskedForAnother)
{
    PresetControllerFactory factory("Looks");

    EXPECT_TRUE(factory.CreateController(""));
    EXPECT_TRUE(factory.CreateController("photo"));
    try {
        factory.CreateController("video");
        FAIL();
    } catch (const Zorvik::Exception& error) {
        EXPECT_EQ(error.GetDescription(), "expected a kind of preset controller (\"\", \"photo\"), "
                                          "found \"video\"");
    }
    EXPECT_THROW(factory.CopyController(nullptr), Zorvik::Exception);
}
