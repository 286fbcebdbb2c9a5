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
    for (int i = 0; i < model.rowCount(group); ++i)
        TakeOrFind(*model.GetPreset(model.index(i, 0, group)));
}

std::optional<QString> KnownContents::TakeOrFind(const PresetController& preset)
{
    try {
        const auto [known, isNew] = m_names.emplace(LookContent::MakeKey(preset, m_tables),
                                                    QString::fromStdString(preset.GetName()));
        return isNew ? std::nullopt : std::optional<QString>(known->second);
    } catch (const Zorvik::Exception&) {
        return std::nullopt;
    }
}

} // namespace LumetraPlugin
