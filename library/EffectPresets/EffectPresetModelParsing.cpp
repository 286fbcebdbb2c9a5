// SPDX-License-Identifier: MIT
// This part of the model is filled by the host's configuration parser.
#include "EffectPresets/EffectPresetModel.h"
#include "EffectPresets/IEffectPresetControllerFactory.h"
#include "EffectPresets/PersistentPlace.h"
#include "EffectPresets/PresetKeys.h"
#include "Settings/NodeOrEmpty.h"
#include "Zorvik/Brassel/SettingsKeys.h"

namespace Zorvik::Lumetra::LumetraPresets {
namespace {

using Brassel::ConstCollectionPtr;
using Brassel::ConstSerializerPtr;
using Brassel::Settings::ConfigData;
using Brassel::Settings::EffectInfo;

// Favourites are stored under this name, so it is never translated.
constexpr char UserGroupName[] = "User presets";

PresetGroupInfo ReadGroupInfo(const std::string& name, const Brassel::ISerializer& settings)
{
    PresetGroupInfo info;
    info.editable = settings.Get(ConfigData::EDITABLE, false);
    info.name = name;
    if (settings.Has(ConfigData::APPSTOREID))
        info.appStoreId =
            settings.GetNode(ConfigData::APPSTOREID)->Get(PresetKeys::ID, info.appStoreId);
    return info;
}

ConstSerializerPtr UserGroupSettings()
{
    const auto settings =
        Brassel::SerializerProperty::Create(std::make_shared<Core::Property>(std::string()));
    settings->Set(ConfigData::EDITABLE, true);
    return settings;
}

ConstCollectionPtr FindUserPresets(const Brassel::ISerializer& userData)
{
    if (userData.Has(PresetKeys::UserPresets))
        return userData.GetNode(PresetKeys::UserPresets)->GetCollection(ConfigData::ITEMS);
    return userData.GetCollection(ConfigData::ITEMS);
}

} // namespace

void EffectPresetModel::ParseGroup(const std::string& groupName, const ConstCollectionPtr& items,
                                   const ConstSerializerPtr& groupSettings)
{
    const auto settings = NodeOrEmpty(groupSettings);
    GroupInfo group{{}, ReadGroupInfo(groupName, *settings)};
    const std::string groupKind = settings->Get(ConfigData::CONTROLLER, "");

    const std::size_t count = items ? items->GetCount() : 0;
    for (std::size_t i = 0; i < count; ++i)
        group.items.push_back(
            CreateController(items->GetElement(i), group.info, groupKind, settings));

    const auto places = CollectPersistentPlaces();
    m_groups.push_back(std::move(group));
    RepointPersistentIndexes(places);
}

/// The order of the steps matters: the sliders take their values from the effects before a blending
/// intensity writes into them.
EffectPresetModel::ControllerPtr
EffectPresetModel::CreateController(const ConstSerializerPtr& item, const PresetGroupInfo& group,
                                    const std::string& groupKind,
                                    const ConstSerializerPtr& groupSettings)
{
    const ControllerPtr controller =
        factory->CreateController(item->Get(ConfigData::CONTROLLER, groupKind));
    static_cast<ISerializable&>(*controller).Deserialize(item);
    controller->SetGroupInfo(group.name, group.editable);
    controller->InitDefaultSettings(defaultSettings);
    const auto& source = item->Has(ConfigData::INTENSITY) ? item : groupSettings;
    controller->InitIntensity(source->GetNode(ConfigData::INTENSITY));
    return controller;
}

void EffectPresetModel::ParseAdditionalInfo(const ConstCollectionPtr& collection)
{
    defaultSettings.clear();
    const std::size_t count = collection ? collection->GetCount() : 0;
    for (std::size_t i = 0; i < count; ++i) {
        SliderSetting slider(false);
        collection->ReadObject(i, slider.GetClassId(), slider);
        defaultSettings.push_back(slider);
    }
}

void EffectPresetModel::ParseAdditionalInfo(const ConstSerializerPtr& serializer)
{
    const auto userData = NodeOrEmpty(serializer);
    ParseGroup(UserGroupName, FindUserPresets(*userData), UserGroupSettings());

    const auto favourites = userData->GetCollection(PresetKeys::Favourites);
    for (std::size_t i = 0; favourites && i < favourites->GetCount(); ++i) {
        const auto mark = favourites->GetElement(i);
        const std::string group = mark->Get(EffectInfo::KEY_GROUP, "");
        MarkFavourite(group, mark->Get(PresetKeys::ID, ""));
    }
}

void EffectPresetModel::MarkFavourite(const std::string& group, const std::string& id)
{
    ForEachPreset([&](std::size_t g, const ControllerPtr& controller) {
        if (controller->GetID() == id && m_groups[g].info.name == group)
            controller->SetFavourite(true);
    });
}

std::vector<EffectPresetModel::PersistentPlace> EffectPresetModel::CollectPersistentPlaces() const
{
    std::vector<PersistentPlace> places;
    const QModelIndexList indexes = persistentIndexList();
    for (const QModelIndex& index : indexes) {
        const QModelIndex group = index.parent();
        places.push_back({index, group.isValid() ? group.row() : -1});
    }
    return places;
}

/// Indexes point into the lists, whose elements move in memory when a list grows. No signal is sent
/// for it, because the rows are the same.
void EffectPresetModel::RepointPersistentIndexes(const std::vector<PersistentPlace>& places)
{
    for (const PersistentPlace& place : places) {
        const QModelIndex group =
            place.groupRow < 0 ? QModelIndex() : index(place.groupRow, 0, QModelIndex());
        changePersistentIndex(place.index, index(place.index.row(), place.index.column(), group));
    }
}

} // namespace Zorvik::Lumetra::LumetraPresets
