// SPDX-License-Identifier: GPL-2.0-or-later
#include "EffectPresets/EffectPresetModel.h"
#include "Settings/IntensitySettingType.h"
#include "Settings/IntensitySettingsFactory.h"
#include "Settings/SliderSetting.h"
#include "core/PresetSession.h"
#include "photo/Image.h"
#include "storage/JsonDocument.h"
#include "workspace/WorkspaceController.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Quindle/EffectRegistry.h"

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <set>

using namespace LumetraPlugin;
using namespace Zorvik::Lumetra::LumetraPresets;
using LumetraHost::Image;
using LumetraHost::JsonDocument;
using Zorvik::Brassel::ConstSerializerPtr;
using Zorvik::Brassel::ISerializable;
using Zorvik::Quindle::EffectList;
using Zorvik::Quindle::EffectRegistry;
using Zorvik::Quindle::EffectsSettings;
using Zorvik::Quindle::IEffectSettings;

namespace {

const QString File = QStringLiteral(LUMETRA_SHIPPED_CATALOGUE);

/// The light skin of a colour chart and five tones from the lightest to the darkest.
constexpr std::array<std::array<int, 3>, 6> SkinTones{{{194, 150, 130},
                                                       {234, 218, 186},
                                                       {215, 189, 150},
                                                       {160, 126, 86},
                                                       {130, 92, 67},
                                                       {96, 65, 52}}};
constexpr int PatchSide = 16;

/// The skin tones side by side in the middle, where no vignette reaches far, on middle grey.
Image MakeSkinChart()
{
    constexpr int width = PatchSide * static_cast<int>(SkinTones.size());
    Image image = Image::Allocate(3 * width, 3 * width, Image::Depth::Bits8);
    for (int y = 0; y < image.GetHeight(); ++y) {
        for (int x = 0; x < image.GetWidth(); ++x) {
            const bool inside = x >= width && x < 2 * width && y >= width && y < 2 * width;
            const auto patch = static_cast<std::size_t>((x - width) / PatchSide);
            for (std::size_t channel = 0; channel < 3; ++channel)
                image.Row(y)[4 * x + static_cast<int>(channel)] =
                    static_cast<std::uint8_t>(inside ? SkinTones[patch][channel] : 119);
            image.Row(y)[4 * x + 3] = 255;
        }
    }
    return image;
}

const std::uint8_t* PatchOf(const Image& chart, std::size_t patch)
{
    const int middle = chart.GetHeight() / 2;
    const int x = chart.GetWidth() / 3 + PatchSide * static_cast<int>(patch) + PatchSide / 2;
    return chart.Row(middle) + 4 * x;
}

EffectList ReadEffects(const ConstSerializerPtr& holder)
{
    EffectList effects;
    const auto list = holder->GetCollection(IEffectSettings::EFFECTS);
    for (std::size_t i = 0; i < list->GetCount(); ++i) {
        const auto node = list->GetElement(i)->GetNode(IEffectSettings::EFFECT);
        const auto effect = IEffectSettings::CreateEffectSettings(node);
        static_cast<ISerializable&>(*effect).Deserialize(node);
        effects.push_back(effect);
    }
    return effects;
}

/// Every parameter of every effect, by "effect.parameter".
std::map<std::string, double> Describe(const EffectList& effects)
{
    std::map<std::string, double> values;
    for (const auto& effect : effects) {
        for (const auto& parameter : EffectRegistry::Find(effect->GetEffectID())->parameters)
            values[effect->GetEffectID() + "." + parameter.name] =
                effect->GetParameter(parameter.name);
    }
    return values;
}

using Values = std::map<std::string, double>;

void ExpectSameValues(const Values& seen, const Values& expected, const std::string& place)
{
    for (const auto& [name, value] : seen)
        EXPECT_NEAR(value, expected.at(name), 1e-9) << place << ", " << name;
}

/// A preset as its file stores it.
struct StoredPreset
{
    std::string name;
    std::string id;
    ConstSerializerPtr item;
    ConstSerializerPtr intensity;
};

std::vector<StoredPreset> ReadStoredPresets()
{
    std::vector<StoredPreset> presets;
    const auto groups = JsonDocument::Read(File).GetRoot()->GetCollection("groups");
    for (std::size_t g = 0; g < groups->GetCount(); ++g) {
        const auto items = groups->GetElement(g)->GetCollection("items");
        const auto settings = groups->GetElement(g)->GetNode("settings");
        for (std::size_t i = 0; i < items->GetCount(); ++i) {
            const auto item = items->GetElement(i);
            const auto own = item->GetNode("intensity");
            presets.push_back({item->Get("name", ""), item->Get("id", ""), item,
                               own ? own : settings->GetNode("intensity")});
        }
    }
    return presets;
}

class ShippedCatalogueTest : public testing::Test
{
protected:
    void SetUp() override { ASSERT_EQ(session.Load({File}, nullptr), QStringList()); }

    std::vector<QModelIndex> Presets(int group)
    {
        const EffectPresetModel& model = session.GetModel();
        std::vector<QModelIndex> presets;
        const QModelIndex parent = model.index(group, 0);
        for (int row = 0; row < model.rowCount(parent); ++row)
            presets.push_back(model.index(row, 0, parent));
        return presets;
    }

    /// All of them, as they follow each other in the file.
    std::vector<QModelIndex> Presets()
    {
        std::vector<QModelIndex> all;
        for (int group = 0; group < session.GetModel().rowCount(); ++group) {
            for (const QModelIndex& preset : Presets(group))
                all.push_back(preset);
        }
        return all;
    }

    Image Draw(const QModelIndex& preset, const Image& photo)
    {
        session.OpenPhoto(photo);
        session.GetModel().setData(preset, true, EffectPresetModel::AppliedRole);
        return session.GetWorkspace().GetDrawer().Result();
    }

    PresetSession session{"Looks"};
};

std::string NameOf(const QModelIndex& preset)
{
    return preset.data(EffectPresetModel::PresetNameRole).toString().toStdString();
}

} // namespace

TEST_F(ShippedCatalogueTest, loadsWithoutARemark)
{
    for (const auto& report : session.GetReports())
        ADD_FAILURE() << report.ToText();
    EXPECT_EQ(Presets().size(), ReadStoredPresets().size());
    EXPECT_EQ(session.GetModel().rowCount(), 4); // three groups and the user's
}

TEST_F(ShippedCatalogueTest, everyPresetHasAnIdOfItsOwnAndEachEffectOnce)
{
    std::set<std::string> ids;
    for (const StoredPreset& preset : ReadStoredPresets()) {
        EXPECT_FALSE(preset.id.empty()) << preset.name;
        EXPECT_TRUE(ids.insert(preset.id).second) << preset.id;
        std::set<std::string> effects;
        for (const auto& effect : ReadEffects(preset.item->GetNode("settings")))
            EXPECT_TRUE(effects.insert(effect->GetEffectID()).second)
                << preset.name << ", " << effect->GetEffectID();
    }
}

TEST_F(ShippedCatalogueTest, showsAllKindsOfIntensity)
{
    std::set<IntensitySettingType> kinds;
    for (const QModelIndex& preset : Presets())
        kinds.insert(
            preset.data(EffectPresetModel::IntensitySettingTypeRole).value<IntensitySettingType>());

    EXPECT_EQ(kinds, (std::set<IntensitySettingType>{IntensitySettingType::None,
                                                     IntensitySettingType::Blending,
                                                     IntensitySettingType::Slider}));
}

TEST_F(ShippedCatalogueTest, intensitiesStartInsideTheirRange)
{
    for (const QModelIndex& preset : Presets()) {
        const int value = preset.data(EffectPresetModel::IntensityRole).toInt();
        EXPECT_GE(value, preset.data(EffectPresetModel::IntensityMinRole).toInt())
            << NameOf(preset);
        EXPECT_LE(value, preset.data(EffectPresetModel::IntensityMaxRole).toInt())
            << NameOf(preset);
    }
}

/// Sliders have whole positions: a stored value between two of them would be changed by applying.
TEST_F(ShippedCatalogueTest, storedValuesAreWholePositionsOfTheExtraSliders)
{
    const auto stored = ReadStoredPresets();
    const auto presets = Presets();
    ASSERT_EQ(stored.size(), presets.size());
    for (std::size_t i = 0; i < stored.size(); ++i) {
        const auto settings = stored[i].item->GetNode("settings");
        EffectList effects = ReadEffects(settings);
        const auto sliders = presets[i]
                                 .data(EffectPresetModel::DefaultSettingsValuesRole)
                                 .value<SliderSetting::List>();
        for (const SliderSetting& slider : sliders) {
            slider.SaveValue(effects);
            EXPECT_GE(slider.Value(), slider.Min()) << stored[i].name << ", " << slider.Title();
            EXPECT_LE(slider.Value(), slider.Max()) << stored[i].name << ", " << slider.Title();
        }

        ExpectSameValues(Describe(effects), Describe(ReadEffects(settings)), stored[i].name);
    }
}

TEST_F(ShippedCatalogueTest, storedValuesAreWholePositionsOfTheIntensity)
{
    for (const StoredPreset& preset : ReadStoredPresets()) {
        const auto settings = preset.item->GetNode("settings");
        const auto intensity = IntensitySettingsFactory().Create(preset.intensity);
        EffectsSettings effects(1);
        effects.Effects() = ReadEffects(settings);
        if (intensity->GetType() != IntensitySettingType::Slider)
            continue;

        intensity->LoadValue(effects);
        intensity->SaveValue(effects);

        ExpectSameValues(Describe(effects.Effects()), Describe(ReadEffects(settings)), preset.name);
    }
}

/// Applying writes the extra sliders first and the intensity over them: a slider for a parameter
/// that the intensity drives would do nothing.
TEST_F(ShippedCatalogueTest, noExtraSliderIsOverruledByTheIntensity)
{
    const auto stored = ReadStoredPresets();
    const auto presets = Presets();
    for (std::size_t i = 0; i < stored.size(); ++i) {
        const auto settings = stored[i].item->GetNode("settings");
        const auto sliders = presets[i]
                                 .data(EffectPresetModel::DefaultSettingsValuesRole)
                                 .value<SliderSetting::List>();
        for (SliderSetting slider : sliders) {
            EffectsSettings effects(1);
            effects.Effects() = ReadEffects(settings);
            const auto intensity = IntensitySettingsFactory().Create(stored[i].intensity);
            intensity->LoadValue(effects);
            slider.SetValue(slider.Value() == slider.Max() ? slider.Min() : slider.Max());
            slider.SaveValue(effects.Effects());
            const auto moved = Describe(effects.Effects());

            intensity->SaveValue(effects);

            ExpectSameValues(Describe(effects.Effects()), moved,
                             stored[i].name + ", " + slider.Title());
        }
    }
}

TEST_F(ShippedCatalogueTest, everyLookIsSeen)
{
    const Image photo = MakeSkinChart();
    for (const QModelIndex& preset : Presets()) {
        const Image look = Draw(preset, photo);
        int largest = 0;
        for (std::size_t patch = 0; patch < SkinTones.size(); ++patch) {
            for (std::size_t channel = 0; channel < 3; ++channel)
                largest = std::max(
                    largest, std::abs(PatchOf(look, patch)[channel] - SkinTones[patch][channel]));
        }
        EXPECT_GE(largest, 8) << NameOf(preset);
    }
}

TEST_F(ShippedCatalogueTest, skinStaysSkin)
{
    const Image photo = MakeSkinChart();
    for (int group = 0; group < 2; ++group) { // those in colour
        for (const QModelIndex& preset : Presets(group)) {
            const Image look = Draw(preset, photo);
            for (std::size_t patch = 0; patch < SkinTones.size(); ++patch) {
                const std::uint8_t* const color = PatchOf(look, patch);
                const std::string place = NameOf(preset) + ", tone " + std::to_string(patch) +
                                          ": " + std::to_string(color[0]) + " " +
                                          std::to_string(color[1]) + " " + std::to_string(color[2]);
                EXPECT_GT(color[0], color[1]) << place; // red over green over blue
                EXPECT_GT(color[1], color[2]) << place;
                EXPECT_GT(color[2], 8) << place; // neither drowned nor burnt
                EXPECT_LT(color[1], 250) << place;
            }
        }
    }
}

TEST_F(ShippedCatalogueTest, blackAndWhiteIsWithoutColorOrOfOneTone)
{
    const Image photo = MakeSkinChart();
    for (const QModelIndex& preset : Presets(2)) {
        const Image look = Draw(preset, photo);
        for (std::size_t patch = 0; patch < SkinTones.size(); ++patch) {
            const std::uint8_t* const color = PatchOf(look, patch);
            EXPECT_GE(color[0], color[1]) << NameOf(preset);
            EXPECT_GE(color[1], color[2]) << NameOf(preset);
            EXPECT_LE(color[0] - color[1], 24) << NameOf(preset);
        }
    }
}
