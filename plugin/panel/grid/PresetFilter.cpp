// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/grid/PresetFilter.h"

#include "core/PresetModel.h"
#include "panel/appearance/EffectTexts.h"
#include "panel/commands/RecentPresets.h"

#include <algorithm>

namespace LumetraPlugin {

PresetFilter::PresetFilter(const RecentPresets& recent) : m_recent(recent) {}

void PresetFilter::SetText(const QString& text)
{
    m_words = text.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

bool PresetFilter::IsOfKind(const QModelIndex& preset) const
{
    switch (m_kind) {
    case Kind::Favourites:
        return preset.data(PresetModel::FavouriteRole).toBool();
    case Kind::Recent:
        return m_recent.Contains(preset.data(PresetModel::PresetIdRole).toString());
    case Kind::User:
        return preset.data(PresetModel::EditableRole).toBool();
    default:
        return true;
    }
}

bool PresetFilter::Accepts(const QModelIndex& preset) const
{
    if (!IsOfKind(preset))
        return false;
    const QString group = preset.parent().data(PresetModel::PresetNameRole).toString();
    const QStringList names = {preset.data(PresetModel::PresetNameRole).toString(), group,
                               EffectTexts::Translate(group.toStdString())};
    const QString text = names.join(QLatin1Char('\n'));
    return std::all_of(m_words.begin(), m_words.end(), [&text](const QString& word) {
        return text.contains(word, Qt::CaseInsensitive);
    });
}

} // namespace LumetraPlugin
