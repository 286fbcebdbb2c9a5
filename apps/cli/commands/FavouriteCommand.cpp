// SPDX-License-Identifier: GPL-2.0-or-later
#include "commands/Commands.h"

#include "EffectPresets/EffectPresetModel.h"
#include "console/Text.h"
#include "core/PresetSession.h"
#include "presets/StoreCommand.h"

#include <limits>

namespace LumetraCli {

using Zorvik::Lumetra::LumetraPresets::EffectPresetModel;

namespace {

const QString OffOption = QStringLiteral("off");

/// Marks presets as favourites, or takes the marks off.
class FavouriteCommand : public StoreCommand
{
public:
    FavouriteCommand()
        : StoreCommand(QStringLiteral("favourite"),
                       QT_TRANSLATE_NOOP("LumetraCli::Text", "Marks presets as favourites."))
    {
    }

protected:
    void AddArguments(OptionTable& options) const override;
    QStringList Edit(const QCommandLineParser& parser, LumetraPlugin::PresetSession& session,
                     const Rows& rows) const override;
};

void FavouriteCommand::AddArguments(OptionTable& options) const
{
    options.AddArgument(QStringLiteral("PRESET"), Text::tr("Names or ids of presets."),
                        QStringLiteral("PRESET..."));
    options.AddOption({OffOption, Text::tr("Takes the marks off.")});
}

QStringList FavouriteCommand::Edit(const QCommandLineParser& parser,
                                   LumetraPlugin::PresetSession& session, const Rows& rows) const
{
    std::vector<PresetRow> presets;
    for (const QString& argument : Arguments(parser, 1, std::numeric_limits<int>::max()))
        presets.push_back(FindPreset(rows, argument));
    const bool isOn = !parser.isSet(OffOption);
    QStringList done;
    for (const PresetRow& row : presets) {
        session.GetModel().setData(row.index, isOn, EffectPresetModel::FavouriteRole);
        done.append(
            (isOn ? Text::tr("marked \"%1\"") : Text::tr("unmarked \"%1\"")).arg(row.shown));
    }
    return done;
}

} // namespace

std::unique_ptr<Command> MakeFavouriteCommand()
{
    return std::make_unique<FavouriteCommand>();
}

} // namespace LumetraCli
