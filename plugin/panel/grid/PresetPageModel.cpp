// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/grid/PresetPageModel.h"

#include "core/PresetModel.h"
#include "panel/appearance/EffectTexts.h"
#include "panel/grid/PresetFilter.h"
#include "panel/grid/ThumbnailCache.h"

#include <algorithm>
#include <map>

namespace LumetraPlugin {

PresetPageModel::PresetPageModel(PresetModel& presets, int group, const PresetFilter& filter,
                                 ThumbnailCache& thumbnails)
    : m_presets(presets), m_group(group), m_filter(filter), m_thumbnails(thumbnails)
{
    connect(&presets, &QAbstractItemModel::dataChanged, this, &PresetPageModel::Refresh);
    connect(&presets, &QAbstractItemModel::rowsRemoved, this, &PresetPageModel::Refresh);
    connect(&presets, &QAbstractItemModel::rowsInserted, this, &PresetPageModel::Refresh);
    connect(&thumbnails, &ThumbnailCache::changed, this, &PresetPageModel::OnThumbnailChanged);
    Refresh();
}

QModelIndex PresetPageModel::GetGroup() const
{
    return m_presets.index(m_group, 0);
}

QModelIndex PresetPageModel::ToIndex(const Place& place) const
{
    return m_presets.index(place.row, 0, m_presets.index(place.group, 0));
}

QModelIndex PresetPageModel::ToPreset(const QModelIndex& row) const
{
    if (!row.isValid() || row.row() >= static_cast<int>(m_places.size()))
        return {};
    return ToIndex(m_places[row.row()]);
}

QModelIndex PresetPageModel::FromPreset(const QModelIndex& preset) const
{
    if (!preset.isValid())
        return {};
    const Place place{preset.parent().row(), preset.row()};
    const auto found = std::find(m_places.begin(), m_places.end(), place);
    return found == m_places.end() ? QModelIndex()
                                   : index(static_cast<int>(found - m_places.begin()));
}

std::vector<PresetPageModel::Place> PresetPageModel::FindPlaces() const
{
    const bool showsRecent = m_filter.GetKind() == PresetFilter::Kind::Recent;
    if (showsRecent != (m_group == RecentOfAll))
        return {};
    return showsRecent ? FindRecent() : FindInGroup();
}

std::vector<PresetPageModel::Place> PresetPageModel::FindInGroup() const
{
    std::vector<Place> places;
    for (int row = 0; row < m_presets.rowCount(GetGroup()); ++row)
        if (const Place place{m_group, row}; m_filter.Accepts(ToIndex(place)))
            places.push_back(place);
    return places;
}

/// Looks for all ids in one walk over the presets, of which there may be thousands.
std::vector<PresetPageModel::Place> PresetPageModel::FindRecent() const
{
    const QStringList order = m_filter.GetRecentOrder();
    std::map<int, Place> found; // by the place in the order
    for (int group = 0; group < m_presets.rowCount(); ++group)
        for (int row = 0; row < m_presets.rowCount(m_presets.index(group, 0)); ++row) {
            const QModelIndex preset = ToIndex({group, row});
            const int place = order.indexOf(preset.data(PresetModel::PresetIdRole).toString());
            if (place >= 0 && m_filter.Accepts(preset))
                found.emplace(place, Place{group, row});
        }
    std::vector<Place> places;
    for (const auto& [position, place] : found)
        places.push_back(place);
    return places;
}

void PresetPageModel::Refresh()
{
    const std::vector<Place> places = FindPlaces();
    std::vector<const PresetController*> shown;
    for (const Place& place : places)
        shown.push_back(m_presets.GetPreset(ToIndex(place)).get());
    if (shown == m_shown) {
        m_places = places;
        if (!places.empty())
            emit dataChanged(index(0), index(static_cast<int>(places.size()) - 1));
    } else {
        beginResetModel();
        m_places = places;
        m_shown = shown;
        endResetModel();
    }
    emit refreshed();
}

int PresetPageModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_places.size());
}

QVariant PresetPageModel::data(const QModelIndex& row, int role) const
{
    const QModelIndex preset = ToPreset(row);
    if (!preset.isValid())
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
        return preset.data(PresetModel::ShownNameRole);
    case Qt::AccessibleDescriptionRole:
        return DescribeMarks(preset);
    case Qt::DecorationRole:
        return m_thumbnails.Get(preset);
    case Qt::ToolTipRole:
        return EffectTexts::GetToolTip(*m_presets.GetPreset(preset));
    case ProblemRole:
        return FindProblem(preset);
    default:
        return role >= Qt::UserRole ? preset.data(role) : QVariant();
    }
}

QString PresetPageModel::FindProblem(const QModelIndex& preset) const
{
    return QString::fromStdString(
        m_presets.GetPreset(preset)->FindProblem(LumetraHost::ContentCheck::Presence));
}

/// The picture's marks in words, for screen readers.
QString PresetPageModel::DescribeMarks(const QModelIndex& preset) const
{
    QStringList marks;
    if (preset.data(PresetModel::AppliedRole).toBool())
        marks.append(tr("on the photo"));
    if (preset.data(PresetModel::FavouriteRole).toBool())
        marks.append(tr("favourite"));
    if (preset.data(PresetModel::PopularRole).toBool())
        marks.append(tr("popular"));
    if (preset.data(PresetModel::DownloadableRole).toBool())
        marks.append(tr("yet to be downloaded"));
    if (!FindProblem(preset).isEmpty())
        marks.append(tr("a file that it needs is missing"));
    return marks.join(QStringLiteral(", "));
}

void PresetPageModel::OnThumbnailChanged(const QString& key)
{
    for (int i = 0; i < rowCount(); ++i) {
        const auto preset = m_presets.GetPreset(ToPreset(index(i)));
        const bool isMeant =
            key.isEmpty() || QString::fromStdString(preset->GetPreviewKey()) == key;
        if (isMeant)
            emit dataChanged(index(i), index(i), {Qt::DecorationRole});
    }
}

} // namespace LumetraPlugin
