// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QAbstractListModel>

#include <vector>

namespace LumetraPlugin {

class PresetController;
class PresetFilter;
class PresetModel;
class ThumbnailCache;

/// The presets of one group that the filter lets through, or the recent ones of all groups, as a
/// list that an ordinary view can show: with texts, pictures and tool tips. While the filter asks
/// for recent presets, groups are empty; at other times the list of recent ones is.
/// All roles from 256 on are those of the preset model.
///
/// Reads the preset model again at every signal of it: that one announces no insertions and says
/// with invalid indexes that anything may have changed. Renames come without any signal: call
/// Refresh().
class PresetPageModel : public QAbstractListModel
{
    Q_OBJECT

public:
    /// A text about the file that the preset needs and does not find, and what was expected of it;
    /// empty for a preset that can be drawn.
    static constexpr int ProblemRole = Qt::UserRole - 1;

    /// In place of a group: the presets that were used last, of all groups, the latest first.
    static constexpr int RecentOfAll = -1;

    /// All are kept by reference.
    PresetPageModel(PresetModel& presets, int group, const PresetFilter& filter,
                    ThumbnailCache& thumbnails);

    /// Invalid for the recent presets.
    QModelIndex GetGroup() const;
    QModelIndex ToPreset(const QModelIndex& row) const;
    /// The row of the page; invalid for a preset that the page does not show.
    QModelIndex FromPreset(const QModelIndex& preset) const;

    /// Reads the group again; announces changed rows, or a reset when there are other rows.
    void Refresh();

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& row, int role = Qt::DisplayRole) const override;

signals:
    /// Emitted after every reading of the group.
    void refreshed();

private:
    /// A place in the preset model.
    struct Place
    {
        int group;
        int row;

        bool operator==(const Place& other) const
        {
            return group == other.group && row == other.row;
        }
    };

    QString DescribeMarks(const QModelIndex& preset) const;
    QString FindProblem(const QModelIndex& preset) const;
    QModelIndex ToIndex(const Place& place) const;
    std::vector<Place> FindPlaces() const;
    std::vector<Place> FindInGroup() const;
    std::vector<Place> FindRecent() const;
    void OnThumbnailChanged(const QString& key);

    PresetModel& m_presets;
    int m_group;
    const PresetFilter& m_filter;
    ThumbnailCache& m_thumbnails;
    std::vector<Place> m_places;
    std::vector<const PresetController*>
        m_shown; // the presets in these places; compared, never followed
};

} // namespace LumetraPlugin
