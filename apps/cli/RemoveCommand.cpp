// SPDX-License-Identifier: GPL-2.0-or-later
#include "RemoveCommand.h"

#include "EffectPresets/EffectPresetModel.h"
#include "core/PresetSession.h"

#include <limits>

namespace LumetraCli {

QString RemoveCommand::GetName() const
{
    return QStringLiteral("remove");
}

QString RemoveCommand::GetSummary() const
{
    return QStringLiteral("Removes presets of your own.");
}

void RemoveCommand::AddArguments(QCommandLineParser& parser) const
{
    parser.addPositionalArgument(QStringLiteral("PRESET"),
                                 QStringLiteral("Names or ids of your presets."),
                                 QStringLiteral("PRESET..."));
}

QStringList RemoveCommand::Edit(const QCommandLineParser& parser,
                                LumetraPlugin::PresetSession& session, const Rows& rows) const
{
    // Finds all presets before the first is removed; persistent indexes follow the rows that move
    // up.
    std::vector<std::pair<QPersistentModelIndex, QString>> presets;
    for (const QString& argument : Arguments(parser, 1, std::numeric_limits<int>::max())) {
        const PresetRow row = FindUsersPreset(rows, argument);
        presets.emplace_back(row.index, row.name);
    }
    QStringList done;
    for (const auto& [index, name] : presets)
        if (index.isValid() && session.GetModel().removeRows(index.row(), 1, index.parent()))
            done.append(QStringLiteral("removed \"%1\"").arg(name));
    return done;
}

} // namespace LumetraCli
