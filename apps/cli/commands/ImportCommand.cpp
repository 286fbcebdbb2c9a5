// SPDX-License-Identifier: GPL-2.0-or-later
#include "commands/Commands.h"

#include "console/Console.h"
#include "console/Text.h"
#include "console/UsageError.h"
#include "core/PresetImport.h"
#include "core/PresetSession.h"
#include "presets/CatalogueOptions.h"
#include "presets/StoreCommand.h"

#include <QFileInfo>

namespace LumetraCli {
namespace {

using LumetraPlugin::ImportedFiles;
using LumetraPlugin::ImportedPreset;
using LumetraPlugin::ImportNaming;
using LumetraPlugin::ImportOptions;
using LumetraPlugin::ImportRemark;
using LumetraPlugin::ImportReport;
using LumetraPlugin::PresetImport;
using LumetraPlugin::PresetSession;

const QString NameOption = QStringLiteral("name");
const QString TablesOption = QStringLiteral("luts");
const QString ShortenOption = QStringLiteral("shorten-names");

/// The name of the preset; empty: each preset is named by its file.
QString ReadName(const QCommandLineParser& parser, PresetSession& session, const QStringList& files)
{
    if (!parser.isSet(NameOption))
        return {};
    if (files.size() != 1 || QFileInfo(files.front()).isDir())
        throw UsageError(
            Text::tr("--name: expected one file, found %1")
                .arg(files.size() == 1 ? Text::tr("a folder") : QString::number(files.size())));
    return StoreCommand::NewName(parser, session.GetModel(), parser.value(NameOption));
}

/// Presets are named without questions: names that are taken get a number.
ImportNaming ReadNaming(const QCommandLineParser& parser, PresetSession& session,
                        const QStringList& files)
{
    ImportNaming naming;
    naming.name = ReadName(parser, session, files);
    naming.sharesCatalogueNames = StoreCommand::SharesCatalogueNames(parser);
    if (parser.isSet(ShortenOption))
        naming.askShortened = [](const QStringList&) { return true; };
    return naming;
}

ImportOptions ReadOptions(const QCommandLineParser& parser)
{
    const ImportOptions options{parser.values(TablesOption)};
    for (const QString& folder : options.tableFolders)
        if (!QFileInfo(folder).isDir())
            throw UsageError(Text::tr("--luts: expected a folder, found \"%1\"").arg(folder));
    return options;
}

ImportedFiles ReadFiles(const QStringList& paths, const ImportOptions& options, Console& console)
{
    const auto files =
        PresetImport::ReadAll(paths, options, [&console](int done, int total, const QString& path) {
            if (total > 1)
                console.ShowProgress(done, total, path);
            return true;
        });
    console.ClearProgress();
    return files;
}

/// Prints what of the look is only like it, or is missing.
void PrintRemarks(const ImportedPreset& preset, ImportRemark::Kind kind, const QString& title,
                  Console& console)
{
    QStringList remarks;
    for (const ImportRemark& remark : preset.remarks)
        if (remark.kind == kind)
            remarks.append(remark.ToText());
    if (!remarks.isEmpty())
        console.PrintLine(
            QStringLiteral("  %1: %2").arg(title, remarks.join(QStringLiteral(", "))));
}

void Print(const ImportedPreset& preset, Console& console)
{
    console.PrintLine(Text::tr("imported \"%1\" from \"%2\"").arg(preset.name, preset.path));
    if (!preset.nameInFile.isEmpty())
        console.PrintLine(QStringLiteral("  ") +
                          Text::tr("shortened from \"%1\"").arg(preset.nameInFile));
    PrintRemarks(preset, ImportRemark::Kind::Approximated, Text::tr("approximated"), console);
    PrintRemarks(preset, ImportRemark::Kind::LeftOut, Text::tr("left out"), console);
}

/// Makes presets of the user's own out of files with looks. A bad file does not keep the others
/// out.
class ImportCommand : public Command
{
public:
    ImportCommand()
        : Command(QStringLiteral("import"),
                  QT_TRANSLATE_NOOP("LumetraCli::Text",
                                    "Makes presets of your own out of files with looks, LUT files "
                                    "and looks of other programs."))
    {
    }

protected:
    void AddOptions(OptionTable& options) const override;
    ExitCode Execute(const QCommandLineParser& parser, Console& console) const override;
};

void ImportCommand::AddOptions(OptionTable& options) const
{
    options.AddArgument(
        QStringLiteral("FILE"),
        Text::tr("Files with looks: .lumetra; pictures that this program has exported, which "
                 "tell of their looks; LUT files: .cube, .3dl, .clf, .cc, .ccc, .cdl, "
                 "HaldCLUT pictures; looks of "
                 "other programs: .xmp, .lrtemplate, .pp3; catalogues and presets: .json; "
                 "packs of these: .zip. A folder stands for the files in it and below it; of "
                 "pictures it takes those alone that are tables. A look that you have "
                 "already, under whatever name, is not added again."),
        QStringLiteral("FILE..."));
    options.AddOption({NameOption,
                       Text::tr("The preset's name, for a file with one look. Default: the "
                                "look's own, or else the file's."),
                       QStringLiteral("name")});
    options.AddOption({TablesOption,
                       Text::tr("Looks here too for the HaldCLUT pictures that .pp3 files "
                                "name. May be repeated."),
                       QStringLiteral("folder")});
    options.AddOption({ShortenOption,
                       Text::tr("Shortens names of more than 50 characters. Without it, such looks "
                                "are not imported.")});
    StoreCommand::AddNameOption(options);
    CatalogueOptions::Add(options);
}

ExitCode ImportCommand::Execute(const QCommandLineParser& parser, Console& console) const
{
    const QStringList paths = parser.positionalArguments().mid(1);
    if (paths.isEmpty())
        throw UsageError(Text::tr("expected at least one file or folder with looks"));
    const ImportOptions options = ReadOptions(parser);
    const auto session = CatalogueOptions::Load(parser, console);
    if (!session || !session->GetStore())
        return ExitCode::SomeFailed;
    const ImportNaming naming = ReadNaming(parser, *session, paths);
    const ImportReport report =
        PresetImport::AddTo(*session, ReadFiles(paths, options, console), naming);
    if (!report.presets.empty() && StoreCommand::Save(*session, console) != ExitCode::Done)
        return ExitCode::SomeFailed;
    for (const ImportedPreset& preset : report.presets)
        Print(preset, console);
    for (const LumetraPlugin::KnownLook& look : report.known)
        console.PrintLine(Text::tr("\"%1\" from \"%2\" is here already, as \"%3\"")
                              .arg(look.name, look.path, look.knownAs));
    for (const QString& problem : report.problems)
        console.ReportPlace(problem);
    if (report.tooLong > 0)
        console.Report(Text::tr("--shorten-names imports looks with longer names under shortened "
                                "ones, and --name gives a single one another name"));
    const bool isNamed = naming.name.isEmpty() || report.known.empty(); // else another name stays
    return report.problems.isEmpty() && isNamed ? ExitCode::Done : ExitCode::SomeFailed;
}

} // namespace

std::unique_ptr<Command> MakeImportCommand()
{
    return std::make_unique<ImportCommand>();
}

} // namespace LumetraCli
