// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/grid/PresetFilter.h"

#include "core/PresetModel.h"
#include "panel/commands/RecentPresets.h"

#include <algorithm>
#include <iterator>

namespace LumetraPlugin {

PresetFilter::PresetFilter(const RecentPresets& recent) : m_recent(recent)
{
    TakeRecentOrder();
}

void PresetFilter::SetKind(Kind kind)
{
    m_kind = kind;
    TakeRecentOrder();
}

void PresetFilter::TakeRecentOrder()
{
    m_recentOrder = m_recent.GetIds();
}

QStringList PresetFilter::GetRecentOrder() const
{
    const QStringList& ids = m_recent.GetIds();
    QStringList order;
    std::copy_if(ids.begin(), ids.end(), std::back_inserter(order),
                 [this](const QString& id) { return !m_recentOrder.contains(id); });
    std::copy_if(m_recentOrder.begin(), m_recentOrder.end(), std::back_inserter(order),
                 [&ids](const QString& id) { return ids.contains(id); });
    return order;
}

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
    // A look is found by its name in the catalogue too, which tutorials and colleagues may say.
    QStringList names;
    for (const QModelIndex& index : {preset, preset.parent()})
        for (const int role :
             {static_cast<int>(PresetModel::PresetNameRole), PresetModel::ShownNameRole})
            names.append(index.data(role).toString());
    const QString text = names.join(QLatin1Char('\n'));
    return std::all_of(m_words.begin(), m_words.end(), [&text](const QString& word) {
        return text.contains(word, Qt::CaseInsensitive);
    });
}

} // namespace LumetraPlugin
