// SPDX-License-Identifier: GPL-2.0-or-later
#include "commands/Commands.h"

#include "EffectPresets/EffectPresetModel.h"
#include "console/Text.h"
#include "core/PresetSession.h"
#include "presets/StoreCommand.h"

#include <limits>

namespace LumetraCli {
namespace {

/// Removes presets of the user's own.
class RemoveCommand : public StoreCommand
{
public:
    RemoveCommand()
        : StoreCommand(QStringLiteral("remove"),
                       QT_TRANSLATE_NOOP("LumetraCli::Text", "Removes presets of your own."))
    {
    }

protected:
    void AddArguments(OptionTable& options) const override;
    QStringList Edit(const QCommandLineParser& parser, LumetraPlugin::PresetSession& session,
                     const Rows& rows) const override;
};

void RemoveCommand::AddArguments(OptionTable& options) const
{
    options.AddArgument(QStringLiteral("PRESET"), Text::tr("Names or ids of your presets."),
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
            done.append(Text::tr("removed \"%1\"").arg(name));
    return done;
}

} // namespace

std::unique_ptr<Command> MakeRemoveCommand()
{
    return std::make_unique<RemoveCommand>();
}

} // namespace LumetraCli
