// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QHash>
#include <QString>

#include <optional>

class QModelIndex;

namespace LumetraPlugin {

class PresetModel;

/// The names that looks have at one moment: the user's looks and those of the catalogues, these by
/// the name that is stored and by the one that the user reads. Upper and lower case are alike, for
/// looks are found by their names in any case.
class TakenNames
{
public:
    /// The names of all looks but `except`, which may be invalid.
    static TakenNames OfAll(const PresetModel& model, const QModelIndex& except);
    static TakenNames OfAll(const PresetModel& model);
    /// The names of the user's looks alone.
    static TakenNames OfUser(const PresetModel& model);

    /// The row of the group of the first look with that name; nothing when there is none.
    std::optional<int> FindGroup(const QString& name) const;
    bool Contains(const QString& name) const { return FindGroup(name).has_value(); }
    /// Notes the name of a look that comes into that group.
    void Add(const QString& name, int group);

private:
    void AddGroup(const PresetModel& model, const QModelIndex& group, const QModelIndex& except);

    QHash<QString, int> m_groups; ///< by name, made for comparing
};

} // namespace LumetraPlugin
