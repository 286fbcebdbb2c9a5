// SPDX-License-Identifier: GPL-2.0-or-later
#include "presets/StoreCommand.h"

#include "Zorvik/Exception.h"
#include "console/Console.h"
#include "console/Text.h"
#include "console/UsageError.h"
#include "core/PresetNames.h"
#include "core/PresetSession.h"
#include "core/TakenNames.h"
#include "core/userstore/UserPresetStore.h"
#include "presets/CatalogueOptions.h"

namespace LumetraCli {

using LumetraPlugin::PresetModel;
using LumetraPlugin::PresetNames;
using LumetraPlugin::TakenNames;

namespace {

const QString KeepBothOption = QStringLiteral("keep-both");

} // namespace

void StoreCommand::AddOptions(OptionTable& options) const
{
    AddArguments(options);
    CatalogueOptions::Add(options);
}

ExitCode StoreCommand::Execute(const QCommandLineParser& parser, Console& console) const
{
    const auto session = CatalogueOptions::Load(parser, console);
    if (!session || !session->GetStore())
        return ExitCode::SomeFailed;
    const QStringList done = Edit(parser, *session, PresetRows::Read(session->GetModel()));
    if (Save(*session, console) != ExitCode::Done)
        return ExitCode::SomeFailed;
    for (const QString& line : done)
        console.PrintLine(line);
    return ExitCode::Done;
}

ExitCode StoreCommand::Save(LumetraPlugin::PresetSession& session, Console& console)
{
    try {
        for (const std::string& report : session.GetStore()->Save(session.GetModel()))
            console.ReportPlace(QString::fromStdString(report));
        return ExitCode::Done;
    } catch (const Zorvik::Exception& error) {
        console.ReportPlace(QString::fromUtf8(error.what()));
        return ExitCode::SomeFailed;
    }
}

PresetRow StoreCommand::FindPreset(const Rows& rows, const QString& nameOrId)
{
    return PresetRows::Find(rows, nameOrId, QStringLiteral("PRESET"));
}

PresetRow StoreCommand::FindUsersPreset(const Rows& rows, const QString& nameOrId)
{
    const PresetRow row = FindPreset(rows, nameOrId);
    if (!row.isUsers)
        throw UsageError(Text::tr("PRESET: expected one of your own presets, found \"%1\" of "
                                  "the catalogue's group \"%2\"")
                             .arg(row.shown, row.group));
    return row;
}

void StoreCommand::AddNameOption(OptionTable& options)
{
    options.AddOption({KeepBothOption,
                       Text::tr("Takes a name even where a look of the catalogue has it, too. The "
                                "id tells the two apart then.")});
}

bool StoreCommand::SharesCatalogueNames(const QCommandLineParser& parser)
{
    return parser.isSet(KeepBothOption);
}

QString StoreCommand::NewName(const QCommandLineParser& parser,
                              const LumetraPlugin::PresetModel& model, const QString& name,
                              const QModelIndex& renamed)
{
    const QString trimmed = name.trimmed();
    const QString fault = PresetNames::FindFault(name);
    if (!fault.isEmpty())
        throw UsageError(QStringLiteral("NAME: ") + fault);
    if (model.GetUserPresetNames().contains(trimmed))
        throw UsageError(
            Text::tr("NAME: expected a new name, found \"%1\", which one of your presets has")
                .arg(trimmed));
    const auto group = TakenNames::OfAll(model, renamed).FindGroup(trimmed);
    if (group && !SharesCatalogueNames(parser))
        throw UsageError(
            Text::tr("NAME: expected a new name, found \"%1\", which a look of the group \"%2\" "
                     "has; --keep-both takes it all the same")
                .arg(trimmed, model.index(*group, 0).data(PresetModel::ShownNameRole).toString()));
    return trimmed;
}

} // namespace LumetraCli
