// SPDX-License-Identifier: GPL-2.0-or-later
#include "commands/Commands.h"

#include "EffectPresets/EffectPresetModel.h"
#include "console/Text.h"
#include "core/PresetSession.h"
#include "presets/StoreCommand.h"

namespace LumetraCli {
namespace {

using Zorvik::Lumetra::LumetraPresets::EffectPresetModel;

/// Renames one of the user's own presets.
class RenameCommand : public StoreCommand
{
public:
    RenameCommand()
        : StoreCommand(QStringLiteral("rename"),
                       QT_TRANSLATE_NOOP("LumetraCli::Text", "Renames one of your own presets."))
    {
    }

protected:
    void AddArguments(OptionTable& options) const override;
    QStringList Edit(const QCommandLineParser& parser, LumetraPlugin::PresetSession& session,
                     const Rows& rows) const override;
};

void RenameCommand::AddArguments(OptionTable& options) const
{
    options.AddArgument(QStringLiteral("PRESET"), Text::tr("Name or id of one of your presets."));
    options.AddArgument(QStringLiteral("NAME"), Text::tr("Its new name."));
    AddNameOption(options);
}

QStringList RenameCommand::Edit(const QCommandLineParser& parser,
                                LumetraPlugin::PresetSession& session, const Rows& rows) const
{
    const QStringList arguments = Arguments(parser, 2, 2);
    const PresetRow row = FindUsersPreset(rows, arguments[0]);
    const QString name = NewName(parser, session.GetModel(), arguments[1], row.index);
    session.GetModel().setData(row.index, name, EffectPresetModel::PresetNameRole);
    return {Text::tr("renamed \"%1\" to \"%2\"").arg(row.name, name)};
}

} // namespace

std::unique_ptr<Command> MakeRenameCommand()
{
    return std::make_unique<RenameCommand>();
}

} // namespace LumetraCli
