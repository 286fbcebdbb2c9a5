// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/PresetMaker.h"

#include "EffectPresets/PresetKeys.h"
#include "Settings/IntensitySettingType.h"
#include "Settings/SettingKeys.h"
#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Brassel/SerializerProperty.h"
#include "Zorvik/Brassel/SettingsKeys.h"
#include "Zorvik/Quindle/EffectsSettings.h"
#include "catalogue/CatalogueKeys.h"
#include "core/PresetControllerFactory.h"

#include <QUuid>

namespace LumetraPlugin {
namespace {

using Zorvik::Brassel::ISerializable;
using Zorvik::Brassel::SerializerProperty;
using Zorvik::Brassel::SerializerPtr;
using Zorvik::Brassel::Settings::ConfigData;
using Zorvik::Brassel::Settings::EffectInfo;
using Zorvik::Lumetra::LumetraPresets::IntensitySettingType;
using Zorvik::Lumetra::LumetraPresets::PresetKeys;
using Zorvik::Lumetra::LumetraPresets::SettingKeys;
using Zorvik::Quindle::ConstEffectList;
using Zorvik::Quindle::EffectsSettings;
using Zorvik::Quindle::IEffectSettings;

void WriteSlider(const SerializerPtr& node, const PresetMaker::Slider& slider)
{
    node->Set(SettingKeys::SliderTitle, slider.title.toStdString());
    node->Set(SettingKeys::SliderBegin, slider.begin);
    node->Set(SettingKeys::SliderEnd, slider.end);
    const auto list = node->CreateCollection(SettingKeys::SliderVariables);
    for (const auto& variable : slider.variables) {
        const SerializerPtr element = list->AddElement();
        element->Set(SettingKeys::SliderEffectID, variable.effectID);
        element->Set(SettingKeys::SliderParameter, variable.setting);
        element->Set(SettingKeys::SliderBegin, variable.begin);
        element->Set(SettingKeys::SliderEnd, variable.end);
    }
}

void WriteBlending(const SerializerPtr& node, int percent)
{
    node->Set(SettingKeys::BlendValue, percent);
    node->Set(SettingKeys::BlendBegin, EffectsSettings::FullEffect);
    node->Set(SettingKeys::BlendEnd, EffectsSettings::NoEffect);
}

void WriteIntensity(const SerializerPtr& node, const PresetMaker::Content& content)
{
    auto type = IntensitySettingType::None;
    if (content.blend) {
        type = IntensitySettingType::Blending;
        WriteBlending(node->CreateNode(SettingKeys::BlendSetting), *content.blend);
    } else if (content.intensity) {
        type = IntensitySettingType::Slider;
        WriteSlider(node->CreateNode(SettingKeys::SliderSetting), *content.intensity);
    }
    node->Set(SettingKeys::Type, static_cast<int>(type));
}

/// The preset in its stored form.
SerializerPtr MakeNode(const PresetMaker::Content& content)
{
    const std::string name = content.name.toStdString();
    const auto node = SerializerProperty::Create(std::make_shared<Zorvik::Core::Property>(name));
    node->Set(EffectInfo::KEY_NAME, name);
    node->Set(PresetKeys::ID, QUuid::createUuid().toString().toStdString());
    const auto list = node->CreateCollection(IEffectSettings::EFFECTS);
    for (const auto& effect : content.effects)
        list->AddElement()->WriteObject(IEffectSettings::EFFECT, *effect);
    WriteIntensity(node->CreateNode(ConfigData::INTENSITY), content);
    if (!content.sliders)
        return node;
    const auto sliders = node->CreateCollection(LumetraHost::CatalogueKeys::Sliders);
    for (const PresetMaker::Slider& slider : *content.sliders)
        WriteSlider(sliders->AddElement(), slider);
    return node;
}

} // namespace

PresetModel::PresetPtr PresetMaker::Make(const Content& content, PresetControllerFactory& factory)
{
    const SerializerPtr node = MakeNode(content);
    const PresetModel::PresetPtr preset(
        dynamic_cast<PresetController*>(factory.CreateController({}).get()));
    static_cast<ISerializable&>(*preset).Deserialize(node);
    if (content.sliders)
        preset->InitDefaultSettings({});
    preset->InitIntensity(node->GetNode(ConfigData::INTENSITY));
    return preset;
}

PresetModel::PresetPtr PresetMaker::Make(const QString& name, const ConstEffectList& effects,
                                         std::optional<int> intensity,
                                         PresetControllerFactory& factory)
{
    return Make({name, effects, intensity}, factory);
}

} // namespace LumetraPlugin
