// SPDX-License-Identifier: GPL-2.0-or-later
#include "CatalogueFixture.h"
#include "EffectPresets/EffectPresetModel.h"
#include "Settings/IntensitySettingType.h"
#include "Settings/IntensitySettingsFactory.h"
#include "Settings/SliderSetting.h"
#include "storage/JsonDocument.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Quindle/EffectRegistry.h"

#include <QLocale>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

using namespace LumetraPlugin;
using namespace Zorvik::Lumetra::LumetraPresets;
using LumetraHost::JsonDocument;
using Zorvik::Brassel::ConstSerializerPtr;
using Zorvik::Brassel::ISerializable;
using Zorvik::Quindle::EffectList;
using Zorvik::Quindle::EffectRegistry;
using Zorvik::Quindle::EffectsSettings;
using Zorvik::Quindle::IEffectSettings;

namespace {

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
    const auto groups =
        JsonDocument::Read(CatalogueFixture::GetFile()).GetRoot()->GetCollection("groups");
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

using ShippedCatalogueTest = CatalogueFixture;

} // namespace

TEST_F(ShippedCatalogueTest, loadsWithoutARemark)
{
    for (const auto& report : session.GetReports())
        ADD_FAILURE() << report.ToText();
    EXPECT_EQ(Presets().size(), ReadStoredPresets().size());
}

TEST_F(ShippedCatalogueTest, hasAtLeastSixGroupsOfAtLeastEightPresets)
{
    const int groups = session.GetModel().rowCount() - 1; // the last is the user's
    EXPECT_GE(groups, 6);
    for (int group = 0; group < groups; ++group) {
        EXPECT_GE(Presets(group).size(), 8u) << "group " << group;
        EXPECT_FALSE(
            session.GetModel().index(group, 0).data(EffectPresetModel::EditableRole).toBool());
    }
}

TEST_F(ShippedCatalogueTest, everyGroupHasAPopularPresetAndOneABuyerFindsInTheStore)
{
    std::set<QString> storeIds;
    for (int group = 0; group + 1 < session.GetModel().rowCount(); ++group) {
        const auto presets = Presets(group);
        EXPECT_TRUE(std::any_of(presets.begin(), presets.end(),
                                [](const QModelIndex& preset) {
                                    return preset.data(EffectPresetModel::PopularRole).toBool();
                                }))
            << "group " << group;
        storeIds.insert(presets.front().data(EffectPresetModel::AppStoreIdRole).toString());
    }
    EXPECT_EQ(storeIds.count(QStringLiteral("lumetra.presets.black-and-white")), 1u);
}

TEST_F(ShippedCatalogueTest, somePresetsHaveAPreviewOfTheirOwn)
{
    std::size_t previews = 0;
    for (const StoredPreset& preset : ReadStoredPresets())
        previews += preset.item->GetNode("settingsPreview") ? 1 : 0;
    EXPECT_GE(previews, 1u);
}

/// Favourites, sidecars and scripts name presets by their ids.
TEST_F(ShippedCatalogueTest, keepsTheIdsOfItsFirstPresets)
{
    std::set<std::string> ids;
    for (const StoredPreset& preset : ReadStoredPresets())
        ids.insert(preset.id);
    for (const char* id :
         {"portrait.soft-light", "portrait.candlelight", "portrait.fresh", "portrait.porcelain",
          "portrait.golden", "portrait.faded-film", "landscape.clear-day", "landscape.deep-colours",
          "landscape.autumn", "landscape.morning-mist", "landscape.last-light",
          "landscape.heavy-weather", "black-and-white.plain-grey", "black-and-white.red-filter",
          "black-and-white.green-filter", "black-and-white.old-plate", "black-and-white.sepia",
          "black-and-white.noir"})
        EXPECT_EQ(ids.count(id), 1u) << id;
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

TEST_F(ShippedCatalogueTest, everyGroupAndEveryPresetHasAGermanNameOfItsOwn)
{
    QLocale::setDefault(QLocale(QLocale::German));
    std::set<QString> names;
    const int groups = session.GetModel().rowCount() - 1; // the last is the user's
    for (int group = 0; group < groups; ++group)
        EXPECT_FALSE(
            session.GetModel().GetGroupNames(session.GetModel().index(group, 0)).GetAll().empty())
            << "group " << group;
    for (const QModelIndex& preset : Presets()) {
        EXPECT_FALSE(session.GetModel().GetPreset(preset)->GetLocalNames().GetAll().empty())
            << NameOf(preset);
        const QString name = preset.data(PresetModel::ShownNameRole).toString();
        EXPECT_TRUE(names.insert(name).second) << name.toStdString();
    }
    EXPECT_EQ(names.count(QStringLiteral("Herbst")), 1u);
    QLocale::setDefault(QLocale(QLocale::English));
    EXPECT_EQ(session.GetModel()
                  .FindId(QStringLiteral("landscape.autumn"))
                  .data(PresetModel::ShownNameRole)
                  .toString(),
              QStringLiteral("Autumn"));
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
