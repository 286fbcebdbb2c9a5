// SPDX-License-Identifier: GPL-2.0-or-later
#include "RenameCommand.h"

#include "EffectPresets/EffectPresetModel.h"
#include "core/PresetSession.h"

namespace LumetraCli {

using Zorvik::Lumetra::LumetraPresets::EffectPresetModel;

QString RenameCommand::GetName() const
{
    return QStringLiteral("rename");
}

QString RenameCommand::GetSummary() const
{
    return QStringLiteral("Renames one of your own presets.");
}

void RenameCommand::AddArguments(QCommandLineParser& parser) const
{
    parser.addPositionalArgument(QStringLiteral("PRESET"),
                                 QStringLiteral("Name or id of one of your presets."));
    parser.addPositionalArgument(QStringLiteral("NAME"), QStringLiteral("Its new name."));
}

QStringList RenameCommand::Edit(const QCommandLineParser& parser,
                                LumetraPlugin::PresetSession& session, const Rows& rows) const
{
    const QStringList arguments = Arguments(parser, 2, 2);
    EffectPresetModel& model = session.GetModel();
    const PresetRow row = FindUsersPreset(rows, arguments[0]);
    const QString name = NewName(model, arguments[1]);
    model.setData(row.index, name, EffectPresetModel::PresetNameRole);
    return {QStringLiteral("renamed \"%1\" to \"%2\"").arg(row.name, name)};
}

} // namespace LumetraCli
