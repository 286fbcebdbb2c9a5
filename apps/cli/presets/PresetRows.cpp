// SPDX-License-Identifier: GPL-2.0-or-later
#include "presets/PresetRows.h"

#include "console/NameHint.h"
#include "console/Text.h"
#include "console/UsageError.h"
#include "core/CatalogueLocations.h"
#include "core/PresetModel.h"
#include "core/PresetResource.h"

#include <algorithm>
#include <functional>
#include <iterator>

namespace LumetraCli {
namespace {

using LumetraHost::ContentCheck;
using LumetraPlugin::PresetModel;
using LumetraPlugin::PresetResource;
using Zorvik::Lumetra::LumetraPresets::IntensitySettingType;
using Zorvik::Lumetra::LumetraPresets::SliderSetting;
using Rows = std::vector<PresetRow>;

QString FindContentProblem(const PresetModel& model, const QModelIndex& preset, ContentCheck check)
{
    return QString::fromStdString(model.GetPreset(preset)->FindProblem(check));
}

PresetRow ReadRow(const QModelIndex& index, const QString& group)
{
    PresetRow row;
    row.index = index;
    row.group = group;
    row.name = index.data(PresetModel::PresetNameRole).toString();
    row.shown = index.data(PresetModel::ShownNameRole).toString();
    row.id = index.data(PresetModel::PresetIdRole).toString();
    row.intensityType =
        index.data(PresetModel::IntensitySettingTypeRole).value<IntensitySettingType>();
    row.intensity = index.data(PresetModel::IntensityRole).toInt();
    row.intensityMinimum = index.data(PresetModel::IntensityMinRole).toInt();
    row.intensityMaximum = index.data(PresetModel::IntensityMaxRole).toInt();
    row.isPopular = index.data(PresetModel::PopularRole).toBool();
    row.isUsers = index.data(PresetModel::EditableRole).toBool();
    row.isFavourite = index.data(PresetModel::FavouriteRole).toBool();
    row.sliders = index.data(PresetModel::SettingsValuesRole).value<SliderSetting::List>();
    return row;
}

Rows Select(const Rows& rows, const std::function<bool(const PresetRow&)>& fits)
{
    Rows result;
    std::copy_if(rows.begin(), rows.end(), std::back_inserter(result), fits);
    return result;
}

Rows FindAll(const Rows& rows, const QString& nameOrId)
{
    Rows matches = Select(rows, [&](const PresetRow& row) { return row.id == nameOrId; });
    if (matches.empty())
        matches = Select(rows, [&](const PresetRow& row) { return row.name == nameOrId; });
    for (const auto sensitivity : {Qt::CaseSensitive, Qt::CaseInsensitive})
        if (matches.empty())
            matches = Select(
                rows, [&](const PresetRow& row) { return row.IsNamed(nameOrId, sensitivity); });
    return matches;
}

[[noreturn]] void RefuseUnknown(const Rows& rows, const QString& nameOrId, const QString& argument)
{
    std::vector<std::string> names;
    for (const PresetRow& row : rows) {
        names.push_back(row.name.toStdString());
        names.push_back(row.shown.toStdString());
        names.push_back(row.id.toStdString());
    }
    throw UsageError(Text::tr("%1: expected the name or id of a preset, found \"%2\"%3")
                         .arg(argument, nameOrId, MakeNameHint(nameOrId, names)));
}

[[noreturn]] void RefuseAmbiguous(const Rows& matches, const QString& name, const QString& argument)
{
    QStringList ids;
    for (const PresetRow& row : matches)
        ids.append(QStringLiteral("\"%1\" (%2)").arg(row.id, row.group));
    throw UsageError(
        Text::tr("%1: expected one preset, found %2 named \"%3\"; their ids are %4")
            .arg(argument, QString::number(matches.size()), name, ids.join(QStringLiteral(", "))));
}

} // namespace

bool PresetRow::IsNamed(const QString& text, Qt::CaseSensitivity sensitivity) const
{
    return name.compare(text, sensitivity) == 0 || names.Has(text, sensitivity);
}

bool PresetRow::HasIntensity() const
{
    return intensityType != IntensitySettingType::None;
}

QString PresetRow::GetIntensityKind() const
{
    switch (intensityType) {
    case IntensitySettingType::Blending:
        return QStringLiteral("blending");
    case IntensitySettingType::Slider:
        return QStringLiteral("slider");
    default:
        return QStringLiteral("none");
    }
}

QString PresetRow::DescribeIntensity() const
{
    if (!HasIntensity())
        return Text::tr("none");
    const bool isBlending = intensityType == IntensitySettingType::Blending;
    return Text::tr("%1 (%2 to %3), %4")
        .arg(QString::number(intensity), QString::number(intensityMinimum),
             QString::number(intensityMaximum),
             isBlending ? Text::tr("blending") : Text::tr("slider"));
}

std::vector<PresetRow> PresetRows::Read(PresetModel& model)
{
    const QStringList folders = LumetraPlugin::CatalogueLocations::GetResourceFolders();
    Rows rows;
    for (int g = 0; g < model.rowCount(); ++g) {
        const QModelIndex group = model.index(g, 0);
        const QString name = group.data(PresetModel::ShownNameRole).toString();
        for (int i = 0; i < model.rowCount(group); ++i) {
            const QModelIndex preset = model.index(i, 0, group);
            const QString fault = PresetResource::FindFault(model, preset, folders);
            rows.push_back(ReadRow(preset, name));
            rows.back().names = model.GetPreset(preset)->GetLocalNames();
            rows.back().problem =
                fault.isEmpty() ? FindContentProblem(model, preset, ContentCheck::Presence) : fault;
        }
    }
    return rows;
}

QString PresetRows::FindProblem(const PresetRow& row)
{
    const auto* model = dynamic_cast<const PresetModel*>(row.index.model());
    if (!row.problem.isEmpty() || !model)
        return row.problem;
    return FindContentProblem(*model, row.index, ContentCheck::Content);
}

bool PresetRows::Has(const std::vector<PresetRow>& rows, const QString& nameOrId)
{
    return !FindAll(rows, nameOrId).empty();
}

PresetRow PresetRows::Find(const std::vector<PresetRow>& rows, const QString& nameOrId,
                           const QString& argument)
{
    const Rows matches = FindAll(rows, nameOrId);
    if (matches.empty())
        RefuseUnknown(rows, nameOrId, argument);
    if (matches.size() > 1)
        RefuseAmbiguous(matches, nameOrId, argument);
    return matches.front();
}

} // namespace LumetraCli
