// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/PresetModel.h"

#include "Zorvik/Brassel/ISerializerCollection.h"

#include <algorithm>

namespace LumetraPlugin {

using Zorvik::Lumetra::LumetraPresets::SliderSetting;

PresetModel::PresetPtr PresetModel::GetPreset(const QModelIndex& index) const
{
    const QModelIndex group = index.parent();
    if (!group.isValid())
        return nullptr;
    const auto& items = m_groups.at(group.row()).items;
    if (index.row() >= static_cast<int>(items.size()))
        return nullptr;
    return dynamic_cast<PresetController*>(items[index.row()].get());
}

QModelIndex PresetModel::FindPreset(const PresetController& preset) const
{
    for (int g = 0; g < rowCount(); ++g) {
        const auto& items = m_groups[g].items;
        for (std::size_t i = 0; i < items.size(); ++i)
            if (items[i].get() == &preset)
                return index(static_cast<int>(i), 0, index(g, 0));
    }
    return {};
}

QModelIndex PresetModel::FindId(const QString& id) const
{
    for (int g = 0; g < rowCount(); ++g) {
        const QModelIndex group = index(g, 0);
        for (int i = 0; i < rowCount(group); ++i) {
            const QModelIndex preset = index(i, 0, group);
            if (preset.data(PresetIdRole).toString() == id)
                return preset;
        }
    }
    return {};
}

QModelIndex PresetModel::FindApplied() const
{
    QModelIndex applied;
    for (int g = 0; g < rowCount(); ++g) {
        const auto& items = m_groups[g].items;
        for (std::size_t i = 0; i < items.size(); ++i)
            if (items[i]->IsApplied())
                applied = index(static_cast<int>(i), 0, index(g, 0));
    }
    return applied;
}

QModelIndex PresetModel::GetUserGroup() const
{
    for (int g = 0; g < rowCount(); ++g)
        if (m_groups[g].info.editable)
            return index(g, 0);
    return {};
}

/// Makes room for more presets before anything is announced: an index points at the preset's place
/// in memory, which the list may move when it grows.
void PresetModel::ReserveRows(const QModelIndex& group, std::size_t count)
{
    auto& items = m_groups[group.row()].items;
    if (items.size() + count <= items.capacity())
        return;
    QModelIndexList old;
    const QModelIndexList indexes = persistentIndexList();
    std::copy_if(indexes.begin(), indexes.end(), std::back_inserter(old),
                 [&group](const QModelIndex& index) { return index.parent() == group; });
    items.reserve(2 * items.size() + count + 3);
    for (const QModelIndex& index : old)
        changePersistentIndex(index, this->index(index.row(), index.column(), group));
}

void PresetModel::InsertPreset(int row, const QModelIndex& group, const PresetPtr& preset)
{
    auto& items = m_groups.at(group.row()).items;
    const int count = static_cast<int>(items.size());
    const int place = row < 0 || row > count ? count : row;
    ReserveRows(group, 1);
    beginInsertRows(group, place, place);
    items.insert(items.begin() + place, preset);
    endInsertRows();
}

void PresetModel::ParseAdditionalInfo(const Zorvik::Brassel::ConstCollectionPtr& collection)
{
    EffectPresetModel::ParseAdditionalInfo(collection);
    m_sliders.clear();
    for (std::size_t i = 0; collection && i < collection->GetCount(); ++i) {
        SliderSetting slider(false);
        collection->ReadObject(i, slider.GetClassId(), slider);
        m_sliders.push_back(slider);
    }
}

void PresetModel::Attach(const PresetPtr& preset, const GroupInfo& group)
{
    if (preset->GetSettingsDefault().empty())
        preset->InitDefaultSettings(m_sliders);
    preset->SetWorkspaceController(GetWorkspaceReference());
    preset->SetGroupInfo(group.info.name, group.info.editable);
}

QModelIndex PresetModel::AddUserPreset(const PresetPtr& preset)
{
    const QModelIndex group = GetUserGroup();
    Attach(preset, m_groups.at(group.row()));
    InsertPreset(-1, group, preset);
    return FindPreset(*preset);
}

QModelIndexList PresetModel::AddUserPresets(const std::vector<PresetPtr>& presets)
{
    if (presets.empty())
        return {};
    const QModelIndex group = GetUserGroup();
    auto& items = m_groups.at(group.row()).items;
    for (const PresetPtr& preset : presets)
        Attach(preset, m_groups[group.row()]);
    ReserveRows(group, presets.size());
    const int first = static_cast<int>(items.size());
    const int last = first + static_cast<int>(presets.size()) - 1;
    beginInsertRows(group, first, last);
    items.insert(items.end(), presets.begin(), presets.end());
    endInsertRows();
    QModelIndexList indexes;
    for (int row = first; row <= last; ++row)
        indexes.append(index(row, 0, group));
    return indexes;
}

void PresetModel::SetGroupNames(const std::vector<LumetraHost::LocalNames>& names)
{
    m_groupNames = names;
}

const LumetraHost::LocalNames& PresetModel::GetGroupNames(const QModelIndex& group) const
{
    static const LumetraHost::LocalNames none;
    const auto row = static_cast<std::size_t>(group.row());
    return group.isValid() && row < m_groupNames.size() ? m_groupNames[row] : none;
}

QVariant PresetModel::data(const QModelIndex& index, int role) const
{
    if (role != ShownNameRole)
        return EffectPresetModel::data(index, role);
    if (const PresetPtr preset = GetPreset(index))
        return preset->GetShownName();
    const QVariant name = EffectPresetModel::data(index, PresetNameRole);
    const QString shown =
        index.parent().isValid() || !name.isValid() ? QString() : GetGroupNames(index).Find();
    return shown.isEmpty() ? name : shown;
}

} // namespace LumetraPlugin
