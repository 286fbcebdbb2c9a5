// SPDX-License-Identifier: MIT
#include "Settings/IntensitySettingsFactory.h"

#include "Settings/BlendingSetting.h"
#include "Settings/IntensitySettingEmpty.h"
#include "Settings/SettingKeys.h"
#include "Settings/SliderSetting.h"
#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Quindle/EffectsSettings.h"

namespace Zorvik::Lumetra::LumetraPresets {
namespace {

constexpr std::pair<int, int> CoreBlendRange{Quindle::EffectsSettings::FullEffect,
                                             Quindle::EffectsSettings::NoEffect};
constexpr std::pair<int, int> BlendSliderRange{1, 100};

std::unique_ptr<IIntensitySetting> CreateOfType(int type)
{
    switch (type) {
    case static_cast<int>(IntensitySettingType::Blending):
        return std::make_unique<BlendingSetting>(CoreBlendRange, BlendSliderRange);
    case static_cast<int>(IntensitySettingType::Slider):
        return std::make_unique<SliderSetting>(true);
    default:
        return std::make_unique<IntensitySettingEmpty>();
    }
}

} // namespace

IntensitySettingsFactory::IntensitySettingsFactory() = default;
IntensitySettingsFactory::IntensitySettingsFactory(const IntensitySettingsFactory&) = default;
IntensitySettingsFactory&
IntensitySettingsFactory::operator=(const IntensitySettingsFactory&) = default;
IntensitySettingsFactory::~IntensitySettingsFactory() = default;

std::unique_ptr<IIntensitySetting>
IntensitySettingsFactory::Create(const Brassel::ConstSerializerPtr& serializer)
{
    if (!serializer)
        return std::make_unique<IntensitySettingEmpty>();
    auto setting = CreateOfType(serializer->Get(SettingKeys::Type, 0));
    serializer->ReadObject(setting->GetClassId(), *setting);
    return setting;
}

} // namespace Zorvik::Lumetra::LumetraPresets
