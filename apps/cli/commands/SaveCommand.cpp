// SPDX-License-Identifier: GPL-2.0-or-later
#include "commands/Commands.h"

#include "EffectPresets/EffectPresetModel.h"
#include "console/Text.h"
#include "core/PresetSession.h"
#include "presets/PresetOptions.h"
#include "presets/StoreCommand.h"

namespace LumetraCli {
namespace {

/// Saves a preset, tuned or as it is, under a new name among the user's own.
class SaveCommand : public StoreCommand
{
public:
    SaveCommand()
        : StoreCommand(QStringLiteral("save"),
                       QT_TRANSLATE_NOOP("LumetraCli::Text",
                                         "Saves a preset under a new name among your own."))
    {
    }

protected:
    void AddArguments(OptionTable& options) const override;
    QStringList Edit(const QCommandLineParser& parser, LumetraPlugin::PresetSession& session,
                     const Rows& rows) const override;
};

void SaveCommand::AddArguments(OptionTable& options) const
{
    options.AddArgument(QStringLiteral("PRESET"),
                        Text::tr("Name or id of the preset to start from."));
    options.AddArgument(QStringLiteral("NAME"), Text::tr("The new name."));
    PresetOptions::AddValues(options);
    AddNameOption(options);
}

QStringList SaveCommand::Edit(const QCommandLineParser& parser,
                              LumetraPlugin::PresetSession& session, const Rows& rows) const
{
    const QStringList arguments = Arguments(parser, 2, 2);
    const QString name = NewName(parser, session.GetModel(), arguments[1]);
    const PresetUse use = PresetOptions::MakeUse(parser, FindPreset(rows, arguments[0]));
    use.SaveAs(session, name);
    return {Text::tr("saved \"%1\" from \"%2\"").arg(name, use.GetPreset().shown)};
}

} // namespace

std::unique_ptr<Command> MakeSaveCommand()
{
    return std::make_unique<SaveCommand>();
}

} // namespace LumetraCli
