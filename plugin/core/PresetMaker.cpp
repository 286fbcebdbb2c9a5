// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/PresetMaker.h"

#include "EffectPresets/PresetKeys.h"
#include "Settings/IntensitySettingType.h"
#include "Settings/SettingKeys.h"
#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Brassel/SerializerProperty.h"
#include "Zorvik/Brassel/SettingsKeys.h"
#include "Zorvik/Quindle/EffectsSettings.h"
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

void WriteIntensity(const SerializerPtr& node, std::optional<int> intensity)
{
    const auto type = intensity ? IntensitySettingType::Blending : IntensitySettingType::None;
    node->Set(SettingKeys::Type, static_cast<int>(type));
    if (!intensity)
        return;
    const SerializerPtr blending = node->CreateNode(SettingKeys::BlendSetting);
    blending->Set(SettingKeys::BlendValue, *intensity);
    blending->Set(SettingKeys::BlendBegin, EffectsSettings::FullEffect);
    blending->Set(SettingKeys::BlendEnd, EffectsSettings::NoEffect);
}

/// The preset in its stored form.
SerializerPtr MakeNode(const QString& name, const ConstEffectList& effects,
                       std::optional<int> intensity)
{
    const auto node =
        SerializerProperty::Create(std::make_shared<Zorvik::Core::Property>(name.toStdString()));
    node->Set(EffectInfo::KEY_NAME, name.toStdString());
    node->Set(PresetKeys::ID, QUuid::createUuid().toString().toStdString());
    const auto list = node->CreateCollection(IEffectSettings::EFFECTS);
    for (const auto& effect : effects)
        list->AddElement()->WriteObject(IEffectSettings::EFFECT, *effect);
    WriteIntensity(node->CreateNode(ConfigData::INTENSITY), intensity);
    return node;
}

} // namespace

PresetModel::PresetPtr PresetMaker::Make(const QString& name, const ConstEffectList& effects,
                                         std::optional<int> intensity,
                                         PresetControllerFactory& factory)
{
    const SerializerPtr node = MakeNode(name, effects, intensity);
    const PresetModel::PresetPtr preset(
        dynamic_cast<PresetController*>(factory.CreateController({}).get()));
    static_cast<ISerializable&>(*preset).Deserialize(node);
    preset->InitIntensity(node->GetNode(ConfigData::INTENSITY));
    return preset;
}

} // namespace LumetraPlugin
