// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QAbstractListModel>

#include <vector>

namespace LumetraPlugin {

class PresetController;
class PresetFilter;
class PresetModel;
class ThumbnailCache;

/// The presets of one group that the filter lets through, as a list that an ordinary view can show:
/// with texts, pictures and tool tips. All roles from 256 on are those of the preset model.
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

    /// All are kept by reference.
    PresetPageModel(PresetModel& presets, int group, const PresetFilter& filter,
                    ThumbnailCache& thumbnails);

    QModelIndex GetGroup() const;
    QModelIndex ToPreset(const QModelIndex& row) const;
    /// The row of the page; invalid for a preset of another group and for one that the filter
    /// hides.
    QModelIndex FromPreset(const QModelIndex& preset) const;

    /// Reads the group again; announces changed rows, or a reset when there are other rows.
    void Refresh();

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& row, int role = Qt::DisplayRole) const override;

signals:
    /// Emitted after every reading of the group.
    void refreshed();

private:
    QString DescribeMarks(const QModelIndex& preset) const;
    QString FindProblem(const QModelIndex& preset) const;
    std::vector<int> FindRows() const;
    void OnThumbnailChanged(const QString& key);

    PresetModel& m_presets;
    int m_group;
    const PresetFilter& m_filter;
    ThumbnailCache& m_thumbnails;
    std::vector<int> m_rows; // of the group
    std::vector<const PresetController*>
        m_shown; // the presets in these rows; compared, never followed
};

} // namespace LumetraPlugin
