// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "EffectPresets/EffectPresetModel.h"
#include "core/PresetController.h"

#include <vector>

namespace LumetraPlugin {

/// The library's model, filled by PresetControllerFactory. Adds what views of this program need
/// beyond the roles: the preset behind a row, to show it without applying it, and a way to put a
/// removed preset back. Views go on changing presets through the roles alone.
class PresetModel : public Zorvik::Lumetra::LumetraPresets::EffectPresetModel
{
public:
    using PresetPtr = boost::intrusive_ptr<PresetController>;

    /// Reads as a QString, on a preset and on a group: the name in the user's language, that of
    /// QLocale's default, where the catalogue has one, else what PresetNameRole reads. It is for
    /// showing alone; to store a name, read PresetNameRole. A change of the language is not
    /// announced.
    static constexpr int ShownNameRole = Qt::UserRole + 100;

    using EffectPresetModel::EffectPresetModel;

    /// The translations of the groups' names, of the first group first.
    void SetGroupNames(const std::vector<LumetraHost::LocalNames>& names);
    const LumetraHost::LocalNames& GetGroupNames(const QModelIndex& group) const;

    /// Null for a group and for an index of no row.
    PresetPtr GetPreset(const QModelIndex& index) const;
    /// The present row of the preset; invalid when it has been removed.
    QModelIndex FindPreset(const PresetController& preset) const;
    /// The first preset of that id, group by group; invalid when there is none.
    QModelIndex FindId(const QString& id) const;
    /// The preset that is applied; invalid when there is none.
    QModelIndex FindApplied() const;
    /// The group that role 268 appends to: the first editable one; invalid when there is none.
    QModelIndex GetUserGroup() const;

    /// Inserts a preset that removeRows() took away as row `row` of `group`; out of range: at the
    /// group's end. Persistent indexes to other rows stay right.
    void InsertPreset(int row, const QModelIndex& group, const PresetPtr& preset);
    /// Appends a preset that is in no model yet to the user's group, announced as an insertion, and
    /// attaches it to this model's workspace. One without extra sliders gets those of the
    /// catalogues that its effects have. Returns its index.
    QModelIndex AddUserPreset(const PresetPtr& preset);

    /// Appends several in one insertion. Returns their indexes, in the same order.
    QModelIndexList AddUserPresets(const std::vector<PresetPtr>& presets);

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    using EffectPresetModel::ParseAdditionalInfo;
    /// Keeps the default sliders for presets that are added later.
    void ParseAdditionalInfo(const Zorvik::Brassel::ConstCollectionPtr& collection) override;

private:
    void ReserveRows(const QModelIndex& group, std::size_t count);
    void Attach(const PresetPtr& preset, const GroupInfo& group);

    std::vector<LumetraHost::LocalNames> m_groupNames;
    Zorvik::Lumetra::LumetraPresets::SliderSetting::List m_sliders;
};

} // namespace LumetraPlugin
