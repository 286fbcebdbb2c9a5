// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/grid/PresetPageModel.h"

#include "core/PresetModel.h"
#include "panel/appearance/EffectTexts.h"
#include "panel/grid/PresetFilter.h"
#include "panel/grid/ThumbnailCache.h"

#include <algorithm>

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

QModelIndex PresetPageModel::ToPreset(const QModelIndex& row) const
{
    if (!row.isValid() || row.row() >= static_cast<int>(m_rows.size()))
        return {};
    return m_presets.index(m_rows[row.row()], 0, GetGroup());
}

QModelIndex PresetPageModel::FromPreset(const QModelIndex& preset) const
{
    if (!preset.isValid() || preset.parent() != GetGroup())
        return {};
    const auto found = std::find(m_rows.begin(), m_rows.end(), preset.row());
    return found == m_rows.end() ? QModelIndex() : index(static_cast<int>(found - m_rows.begin()));
}

std::vector<int> PresetPageModel::FindRows() const
{
    std::vector<int> rows;
    const QModelIndex group = GetGroup();
    for (int row = 0; row < m_presets.rowCount(group); ++row)
        if (m_filter.Accepts(m_presets.index(row, 0, group)))
            rows.push_back(row);
    return rows;
}

void PresetPageModel::Refresh()
{
    const std::vector<int> rows = FindRows();
    std::vector<const PresetController*> shown;
    for (const int row : rows)
        shown.push_back(m_presets.GetPreset(m_presets.index(row, 0, GetGroup())).get());
    if (shown == m_shown) {
        m_rows = rows;
        if (!rows.empty())
            emit dataChanged(index(0), index(static_cast<int>(rows.size()) - 1));
    } else {
        beginResetModel();
        m_rows = rows;
        m_shown = shown;
        endResetModel();
    }
    emit refreshed();
}

int PresetPageModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
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
