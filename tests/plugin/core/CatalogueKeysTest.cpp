// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/CatalogueKeys.h"

#include "EffectPresets/PresetKeys.h"
#include "Settings/IntensitySettingType.h"
#include "Settings/SettingKeys.h"

#include <gtest/gtest.h>

namespace LumetraTest {
namespace {

using LumetraHost::CatalogueIntensity;
using LumetraHost::CatalogueKeys;
using Zorvik::Lumetra::LumetraPresets::IntensitySettingType;
using Zorvik::Lumetra::LumetraPresets::PresetKeys;
using Zorvik::Lumetra::LumetraPresets::SettingKeys;

TEST(CatalogueKeys, ofPresetsAreThoseThatPresetsAreReadUnder)
{
    EXPECT_STREQ(CatalogueKeys::Id, PresetKeys::ID);
    EXPECT_STREQ(CatalogueKeys::Popular, PresetKeys::Popular);
    EXPECT_STREQ(CatalogueKeys::Image, PresetKeys::Image);
    EXPECT_STREQ(CatalogueKeys::CropPolicy, PresetKeys::PreviewCropPolicy);
    EXPECT_STREQ(CatalogueKeys::FitPolicy, PresetKeys::PreviewFitPolicy);
}

TEST(CatalogueKeys, ofIntensitiesAreThoseThatIntensitiesAreReadUnder)
{
    EXPECT_STREQ(CatalogueKeys::Type, SettingKeys::Type);
    EXPECT_STREQ(CatalogueKeys::None, SettingKeys::IntensityNone);
    EXPECT_STREQ(CatalogueKeys::Blending, SettingKeys::BlendSetting);
    EXPECT_STREQ(CatalogueKeys::Slider, SettingKeys::SliderSetting);
    EXPECT_STREQ(CatalogueKeys::Title, SettingKeys::SliderTitle);
    EXPECT_STREQ(CatalogueKeys::Value, SettingKeys::BlendValue);
    EXPECT_STREQ(CatalogueKeys::Begin, SettingKeys::BlendBegin);
    EXPECT_STREQ(CatalogueKeys::Begin, SettingKeys::SliderBegin);
    EXPECT_STREQ(CatalogueKeys::End, SettingKeys::BlendEnd);
    EXPECT_STREQ(CatalogueKeys::End, SettingKeys::SliderEnd);
    EXPECT_STREQ(CatalogueKeys::Variables, SettingKeys::SliderVariables);
    EXPECT_STREQ(CatalogueKeys::EffectId, SettingKeys::SliderEffectID);
    EXPECT_STREQ(CatalogueKeys::Setting, SettingKeys::SliderParameter);
}

TEST(CatalogueKeys, numberTheIntensitiesAsTheyAreRead)
{
    EXPECT_EQ(int(CatalogueIntensity::None), int(IntensitySettingType::None));
    EXPECT_EQ(int(CatalogueIntensity::Blending), int(IntensitySettingType::Blending));
    EXPECT_EQ(int(CatalogueIntensity::Slider), int(IntensitySettingType::Slider));
}

} // namespace
} // namespace LumetraTest
