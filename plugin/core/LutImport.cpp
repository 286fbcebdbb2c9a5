// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/LutImport.h"

#include "EffectPresets/PresetKeys.h"
#include "Settings/IntensitySettingType.h"
#include "Settings/SettingKeys.h"
#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Brassel/SerializerProperty.h"
#include "Zorvik/Brassel/SettingsKeys.h"
#include "catalogue/VisibleText.h"
#include "core/PresetCollection.h"
#include "core/PresetControllerFactory.h"
#include "core/PresetNames.h"
#include "lut/LutFormat.h"
#include "lut/LutReader.h"

#include <QUuid>

namespace LumetraPlugin {
namespace {

using LumetraHost::LutFormat;
using LumetraHost::LutLook;
using Zorvik::Brassel::ISerializable;
using Zorvik::Brassel::SerializerProperty;
using Zorvik::Brassel::SerializerPtr;
using Zorvik::Brassel::Settings::ConfigData;
using Zorvik::Brassel::Settings::EffectInfo;
using Zorvik::Lumetra::LumetraPresets::IntensitySettingType;
using Zorvik::Lumetra::LumetraPresets::PresetKeys;
using Zorvik::Lumetra::LumetraPresets::SettingKeys;
using Zorvik::Quindle::EffectsSettings;
using Zorvik::Quindle::IEffectSettings;

/// The look's name; "LUT" for a look without one.
QString NameOf(const LutLook& look)
{
    const QString name =
        LumetraHost::VisibleText::WithoutControls(QString::fromStdString(look.name)).trimmed();
    return name.isEmpty() ? QStringLiteral("LUT") : name;
}

void WriteIntensity(const SerializerPtr& node)
{
    node->Set(SettingKeys::Type, static_cast<int>(IntensitySettingType::Blending));
    const SerializerPtr blending = node->CreateNode(SettingKeys::BlendSetting);
    blending->Set(SettingKeys::BlendValue, 100);
    blending->Set(SettingKeys::BlendBegin, EffectsSettings::FullEffect);
    blending->Set(SettingKeys::BlendEnd, EffectsSettings::NoEffect);
}

/// The preset in its stored form.
SerializerPtr MakeNode(const LutLook& look, const QString& name)
{
    const auto node =
        SerializerProperty::Create(std::make_shared<Zorvik::Core::Property>(name.toStdString()));
    node->Set(EffectInfo::KEY_NAME, name.toStdString());
    node->Set(PresetKeys::ID, QUuid::createUuid().toString().toStdString());
    node->CreateCollection(IEffectSettings::EFFECTS)
        ->AddElement()
        ->WriteObject(IEffectSettings::EFFECT, *look.effect);
    WriteIntensity(node->CreateNode(ConfigData::INTENSITY));
    return node;
}

PresetModel::PresetPtr MakePreset(const LutLook& look, const QString& name,
                                  PresetControllerFactory& factory)
{
    const SerializerPtr node = MakeNode(look, name);
    const PresetModel::PresetPtr preset(
        dynamic_cast<PresetController*>(factory.CreateController({}).get()));
    static_cast<ISerializable&>(*preset).Deserialize(node);
    preset->InitIntensity(node->GetNode(ConfigData::INTENSITY));
    return preset;
}

} // namespace

bool LutImport::IsLutName(const QString& path, bool withPictures)
{
    const auto format = LumetraHost::GetLutFormatOfName(path);
    return format && (withPictures || format != LutFormat::Hald);
}

std::vector<QModelIndex> LutImport::AddTo(PresetCollection& collection, const QString& path)
{
    return AddTo(collection, path, collection.GetModel().GetUserPresetNames());
}

std::vector<QModelIndex> LutImport::AddTo(PresetCollection& collection, const QString& path,
                                          QStringList taken)
{
    PresetModel& model = collection.GetModel();
    std::vector<PresetModel::PresetPtr> presets;
    for (const LutLook& look : LumetraHost::LutReader::Read(path)) {
        taken.append(PresetNames::MakeFree(NameOf(look), taken));
        presets.push_back(MakePreset(look, taken.last(), collection.GetFactory()));
    }
    for (const auto& preset : presets)
        model.AddUserPreset(preset);
    // Persistent indexes are needed: an index is good until the next insertion only.
    std::vector<QModelIndex> added;
    for (const auto& preset : presets)
        added.push_back(model.FindPreset(*preset));
    return added;
}

} // namespace LumetraPlugin
