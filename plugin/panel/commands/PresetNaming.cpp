// SPDX-License-Identifier: GPL-2.0-or-later
// This part of the commands gives presets their names.
#include "core/PresetCollection.h"
#include "core/PresetNames.h"
#include "core/TakenNames.h"
#include "panel/commands/PresetCommands.h"

namespace LumetraPlugin {
namespace {

QString ShownNameOf(const QModelIndex& index)
{
    return index.data(PresetModel::ShownNameRole).toString();
}

} // namespace

/// True when no other look has the name, or the user wants it all the same.
bool PresetCommands::MayBeCalled(const QString& name, const TakenNames& taken)
{
    const auto group = taken.FindGroup(name);
    if (!group)
        return true;
    const QModelIndex index = GetModel().index(*group, 0);
    const bool isUsers = index == GetModel().GetUserGroup();
    return m_dialogs.AskSameName(name, isUsers ? tr("My looks") : ShownNameOf(index));
}

/// Asks until the name may be used; what was typed is proposed again. Empty when the user gives up.
QString PresetCommands::AskName(const QString& proposed, const TakenNames& taken, const Ask& ask)
{
    QString name = proposed;
    do {
        name = ask(name, GetModel().GetUserPresetNames());
    } while (!name.isEmpty() && !MayBeCalled(name, taken));
    return name;
}

void PresetCommands::SaveAs(const QModelIndex& preset)
{
    Try([&] {
        if (!GetModel().GetPreset(preset) || !Fetch(preset))
            return;
        const QPersistentModelIndex source = preset;
        const TakenNames taken = TakenNames::OfAll(GetModel());
        const QString free = PresetNames::MakeFreeOf(
            ShownNameOf(preset), [&taken](const QString& name) { return taken.Contains(name); });
        const QString name =
            AskName(free, taken, [this](const QString& proposed, const QStringList& names) {
                return m_dialogs.AskNewName(proposed, names);
            });
        if (name.isEmpty() || !source.isValid())
            return;
        GetModel().setData(source, name, PresetModel::SaveAsUserPresetRole);
        Save();
        emit presetsChanged();
        const QModelIndex group = GetModel().GetUserGroup();
        emit presetAdded(GetModel().index(GetModel().rowCount(group) - 1, 0, group));
    });
}

void PresetCommands::Rename(const QModelIndex& preset)
{
    Try([&] {
        if (!IsUsers(preset))
            return;
        const QPersistentModelIndex renamed = preset;
        const QString old = ShownNameOf(preset);
        const QString name =
            AskName(old, TakenNames::OfAll(GetModel(), preset),
                    [this, &old](const QString& proposed, const QStringList& names) {
                        return m_dialogs.AskOtherName(old, proposed, names);
                    });
        if (name.isEmpty() || !renamed.isValid())
            return;
        GetModel().setData(renamed, name, PresetModel::PresetNameRole);
        Save();
        emit presetsChanged();
        emit appliedChanged(); // the name may be shown there
    });
}

} // namespace LumetraPlugin
