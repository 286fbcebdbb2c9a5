// SPDX-License-Identifier: GPL-2.0-or-later
#include "commands/Commands.h"

#include "EffectPresets/EffectPresetModel.h"
#include "Zorvik/Exception.h"
#include "console/Console.h"
#include "console/UsageError.h"
#include "core/LutImport.h"
#include "core/PresetSession.h"
#include "presets/CatalogueOptions.h"
#include "presets/StoreCommand.h"

namespace LumetraCli {
namespace {

using LumetraPlugin::LutImport;
using LumetraPlugin::PresetSession;
using Zorvik::Lumetra::LumetraPresets::EffectPresetModel;

const QString NameOption = QStringLiteral("name");

/// Adds the looks of one file; returns a line for each.
QStringList Import(const QString& file, const QString& name, PresetSession& session)
{
    QStringList done;
    const auto added = LutImport::AddTo(session, file);
    if (!name.isEmpty() && added.size() == 1)
        session.GetModel().setData(added.front(), name, EffectPresetModel::PresetNameRole);
    for (const QModelIndex& preset : added)
        done.append(QStringLiteral("imported \"%1\" from \"%2\"")
                        .arg(preset.data(EffectPresetModel::PresetNameRole).toString(), file));
    return done;
}

/// The name of the preset; empty: each preset is named by its file.
QString ReadName(const QCommandLineParser& parser, PresetSession& session, int files)
{
    if (!parser.isSet(NameOption))
        return {};
    if (files != 1)
        throw UsageError(QStringLiteral("--name: expected one file, found %1").arg(files));
    return StoreCommand::NewName(session.GetModel(), parser.value(NameOption));
}

/// Makes presets of the user's own out of LUT files. A bad file does not keep the others out.
class ImportCommand : public Command
{
public:
    ImportCommand()
        : Command(QStringLiteral("import"),
                  QStringLiteral("Makes presets of your own out of LUT files."))
    {
    }

protected:
    void AddOptions(QCommandLineParser& parser) const override;
    ExitCode Execute(const QCommandLineParser& parser, Console& console) const override;
};

void ImportCommand::AddOptions(QCommandLineParser& parser) const
{
    parser.addPositionalArgument(
        QStringLiteral("FILE"),
        QStringLiteral("LUT files: .cube, .3dl, .clf, .cc, .ccc, .cdl, HaldCLUT pictures."),
        QStringLiteral("FILE..."));
    parser.addOption({NameOption,
                      QStringLiteral("The preset's name, for a file with one look. Default: the "
                                     "file's."),
                      QStringLiteral("name")});
    CatalogueOptions::Add(parser);
}

ExitCode ImportCommand::Execute(const QCommandLineParser& parser, Console& console) const
{
    const QStringList files = parser.positionalArguments().mid(1);
    if (files.isEmpty())
        throw UsageError(QStringLiteral("expected at least one LUT file"));
    const auto session = CatalogueOptions::Load(parser, console);
    if (!session || !session->GetStore())
        return ExitCode::SomeFailed;
    const QString name = ReadName(parser, *session, files.size());
    QStringList done;
    bool haveSomeFailed = false;
    for (const QString& file : files)
        try {
            done += Import(file, name, *session);
        } catch (const Zorvik::Exception& error) {
            console.ReportPlace(QString::fromUtf8(error.what()));
            haveSomeFailed = true;
        }
    if (!done.isEmpty() && StoreCommand::Save(*session, console) != ExitCode::Done)
        return ExitCode::SomeFailed;
    for (const QString& line : done)
        console.PrintLine(line);
    return haveSomeFailed ? ExitCode::SomeFailed : ExitCode::Done;
}

} // namespace

std::unique_ptr<Command> MakeImportCommand()
{
    return std::make_unique<ImportCommand>();
}

} // namespace LumetraCli
