// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/looks/KnownContents.h"

#include "Zorvik/Exception.h"
#include "core/PresetCollection.h"
#include "core/looks/LookContent.h"
#include "core/userstore/UserPresetStore.h"

namespace LumetraPlugin {

KnownContents::KnownContents(PresetCollection& collection)
    : m_tables(collection.GetStore() ? collection.GetStore()->GetTables() : nullptr)
{
    const PresetModel& model = collection.GetModel();
    const QModelIndex group = model.GetUserGroup();
    for (int i = 0; i < model.rowCount(group); ++i) {
        const auto preset = model.GetPreset(model.index(i, 0, group));
        Add(MakeKey(*preset), QString::fromStdString(preset->GetName()));
    }
}

KnownContents::Key KnownContents::MakeKey(const PresetController& preset) const
{
    try {
        return LookContent::MakeKey(preset, m_tables);
    } catch (const Zorvik::Exception&) {
        return std::nullopt;
    }
}

std::optional<QString> KnownContents::Find(const Key& key) const
{
    const auto found = key ? m_names.find(*key) : m_names.end();
    return found == m_names.end() ? std::nullopt : std::optional<QString>(found->second);
}

void KnownContents::Add(const Key& key, const QString& name)
{
    if (key)
        m_names.emplace(*key, name);
}

} // namespace LumetraPlugin
