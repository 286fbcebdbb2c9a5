// SPDX-License-Identifier: MIT
// This part of the model writes the stored form of user presets and favourites.
#include "EffectPresets/EffectPresetModel.h"
#include "EffectPresets/PresetKeys.h"
#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Brassel/SettingsKeys.h"
#include "Zorvik/Exception.h"
#include "Zorvik/Util/Utf8.h"

#include <boost/current_function.hpp>

#include <algorithm>

namespace Zorvik::Lumetra::LumetraPresets {
namespace {

using Brassel::Settings::ConfigData;
using Brassel::Settings::EffectInfo;

constexpr int CustomGroupErrorLine = 462; // Error reports are told apart by it, so it must stay.

} // namespace

const EffectPresetModel::GroupInfo& EffectPresetModel::GetCustomGroup() const
{
    const auto group = std::find_if(m_groups.begin(), m_groups.end(),
                                    [](const GroupInfo& g) { return g.info.editable; });
    if (group == m_groups.end())
        throw Exception("User preset group not found.", BOOST_CURRENT_FUNCTION,
                        "EffectPresets/EffectPresetModel", CustomGroupErrorLine);
    return *group;
}

EffectPresetModel::GroupInfo& EffectPresetModel::GetCustomGroup()
{
    return const_cast<GroupInfo&>(static_cast<const EffectPresetModel*>(this)->GetCustomGroup());
}

QStringList EffectPresetModel::GetUserPresetNames() const
{
    QStringList names;
    const auto userGroup = static_cast<std::size_t>(&GetCustomGroup() - m_groups.data());
    ForEachPreset([&](std::size_t group, const ControllerPtr& controller) {
        if (group == userGroup)
            names.append(Util::Utf8ToQString(controller->GetName()));
    });
    return names;
}

void EffectPresetModel::Serialize(const Brassel::SerializerPtr& node) const
{
    const auto userPresets =
        node->CreateNode(PresetKeys::UserPresets)->CreateCollection(ConfigData::ITEMS);
    const auto userGroup = static_cast<std::size_t>(&GetCustomGroup() - m_groups.data());
    ForEachPreset([&](std::size_t group, const ControllerPtr& controller) {
        if (group == userGroup)
            static_cast<const ISerializable&>(*controller).Serialize(userPresets->AddElement());
    });

    const auto favourites = node->CreateCollection(PresetKeys::Favourites);
    ForEachPreset([&](std::size_t group, const ControllerPtr& controller) {
        if (!controller->IsFavourite())
            return;
        const auto mark = favourites->AddElement();
        mark->Set(EffectInfo::KEY_GROUP, m_groups[group].info.name);
        mark->Set(PresetKeys::ID, controller->GetID());
    });
}

void EffectPresetModel::Deserialize(const Brassel::ConstSerializerPtr& /*node*/) {}

} // namespace Zorvik::Lumetra::LumetraPresets
