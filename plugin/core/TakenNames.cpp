// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/TakenNames.h"

#include "core/PresetModel.h"

namespace LumetraPlugin {
namespace {

QString MakeKey(const QString& name)
{
    return name.simplified().normalized(QString::NormalizationForm_C).toCaseFolded();
}

} // namespace

TakenNames TakenNames::OfAll(const PresetModel& model, const QModelIndex& except)
{
    TakenNames names;
    for (int group = 0; group < model.rowCount(); ++group)
        names.AddGroup(model, model.index(group, 0), except);
    return names;
}

TakenNames TakenNames::OfAll(const PresetModel& model)
{
    return OfAll(model, QModelIndex());
}

TakenNames TakenNames::OfUser(const PresetModel& model)
{
    TakenNames names;
    names.AddGroup(model, model.GetUserGroup(), QModelIndex());
    return names;
}

void TakenNames::AddGroup(const PresetModel& model, const QModelIndex& group,
                          const QModelIndex& except)
{
    for (int i = 0; i < model.rowCount(group); ++i) {
        const QModelIndex look = model.index(i, 0, group);
        if (look == except)
            continue;
        Add(look.data(PresetModel::PresetNameRole).toString(), group.row());
        Add(look.data(PresetModel::ShownNameRole).toString(), group.row());
    }
}

std::optional<int> TakenNames::FindGroup(const QString& name) const
{
    const auto found = m_groups.constFind(MakeKey(name));
    return found == m_groups.constEnd() ? std::nullopt : std::optional<int>(*found);
}

void TakenNames::Add(const QString& name, int group)
{
    const QString key = MakeKey(name);
    if (!m_groups.contains(key))
        m_groups.insert(key, group);
}

} // namespace LumetraPlugin
