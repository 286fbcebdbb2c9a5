// SPDX-License-Identifier: GPL-2.0-or-later
#include "commands/Commands.h"

#include "Zorvik/Exception.h"
#include "catalogue/LocalNames.h"
#include "catalogue/VisibleText.h"
#include "console/Console.h"
#include "console/Text.h"
#include "console/UsageError.h"
#include "core/PresetNames.h"
#include "core/PresetSession.h"
#include "core/looks/LookFormat.h"
#include "core/looks/LookPreview.h"
#include "core/looks/LookWriter.h"
#include "output/OutputFile.h"
#include "presets/CatalogueOptions.h"
#include "presets/PresetRows.h"

#include <boost/current_function.hpp>

#include <algorithm>

namespace LumetraCli {
namespace {

using LumetraPlugin::LookCredits;
using LumetraPlugin::LookFormat;
using LumetraPlugin::LookPreview;
using LumetraPlugin::LookWriter;
using LumetraPlugin::PresetModel;
using LumetraPlugin::PresetNames;
using Rows = std::vector<PresetRow>;

const QString AuthorOption = QStringLiteral("author");
const QString LicenceOption = QStringLiteral("licence");
const QString NameInOption = QStringLiteral("name-in");
const QString PreviewOption = QStringLiteral("preview");
const QString NoPreviewOption = QStringLiteral("no-preview");
const QString PlainOption = QStringLiteral("plain");

/// Presets as files for other people: with their tables, their makers and a small picture.
class ExportCommand : public Command
{
public:
    ExportCommand()
        : Command(
              QStringLiteral("export"),
              QT_TRANSLATE_NOOP("LumetraCli::Text", "Writes presets as one file for other people."))
    {
    }

protected:
    void AddOptions(OptionTable& options) const override;
    ExitCode Execute(const QCommandLineParser& parser, Console& console) const override;
};

void ExportCommand::AddOptions(OptionTable& options) const
{
    options.AddArgument(QStringLiteral("PRESET"), Text::tr("Names or ids of presets."),
                        QStringLiteral("PRESET..."));
    OutputFile::AddOptions(options, Text::tr("The file to write, .lumetra."));
    options.AddOptions({
        {AuthorOption, Text::tr("Who has made the looks. Default: as the presets say"),
         QStringLiteral("name")},
        {LicenceOption,
         Text::tr("What others may do with them, such as CC-BY-4.0. Default: as the presets "
                  "say"),
         QStringLiteral("licence")},
        {NameInOption,
         Text::tr("The name of one preset in another language, such as de=Lagerfeuer. May be "
                  "given more than once."),
         QStringLiteral("language=name")},
        {PreviewOption,
         Text::tr("Draws the small picture of each look on this photo. Default: the picture "
                  "that is installed with the program"),
         QStringLiteral("photo")},
        {NoPreviewOption, Text::tr("Leaves the small pictures out.")},
        {PlainOption,
         Text::tr("Writes JSON text whatever its length. Default: texts of more than %1 KB "
                  "are packed as .zip archives are")
             .arg(LookFormat::LargestPlainText / 1024)},
    });
    CatalogueOptions::Add(options);
}

QString ReadCredit(const QCommandLineParser& parser, const QString& option)
{
    const QString text = parser.value(option).trimmed();
    if (text.size() > LookFormat::LongestCredit || LumetraHost::VisibleText::HasControls(text))
        throw UsageError(Text::tr("--%1: expected at most %2 characters without control "
                                  "characters, found %3")
                             .arg(option, QString::number(LookFormat::LongestCredit),
                                  QString::number(text.size())));
    return text;
}

std::map<std::string, std::string> ReadNames(const QCommandLineParser& parser, std::size_t presets)
{
    std::map<std::string, std::string> names;
    for (const QString& value : parser.values(NameInOption)) {
        const QString language = value.section(QLatin1Char('='), 0, 0);
        const QString name = value.section(QLatin1Char('='), 1).trimmed();
        const QString fault = PresetNames::FindFault(name);
        if (!LumetraHost::LocalNames::IsLanguage(language.toStdString()) || !fault.isEmpty())
            throw UsageError(
                Text::tr("--name-in: expected language=name, such as de=Lagerfeuer, found "
                         "\"%1\"%2")
                    .arg(value, fault.isEmpty() ? QString() : QStringLiteral(": ") + fault));
        names[language.toStdString()] = name.toStdString();
    }
    if (!names.empty() && presets != 1)
        throw UsageError(Text::tr("--name-in: expected one preset, found %1").arg(presets));
    return names;
}

/// The presets to export, each once, in the order of the command line.
Rows FindPresets(const QCommandLineParser& parser, PresetModel& model)
{
    const Rows all = PresetRows::Read(model);
    Rows rows;
    for (const QString& preset : parser.positionalArguments().mid(1)) {
        const PresetRow row = PresetRows::Find(all, preset, QStringLiteral("PRESET"));
        if (std::none_of(rows.begin(), rows.end(),
                         [&row](const PresetRow& other) { return other.index == row.index; }))
            rows.push_back(row);
    }
    if (rows.empty())
        throw UsageError(Text::tr("expected at least one preset"));
    return rows;
}

LookCredits ReadCredits(const QCommandLineParser& parser, std::size_t presets)
{
    LookCredits credits;
    credits.author = ReadCredit(parser, AuthorOption).toStdString();
    credits.licence = ReadCredit(parser, LicenceOption).toStdString();
    credits.names = ReadNames(parser, presets);
    return credits;
}

QString ReadPreview(const QCommandLineParser& parser)
{
    if (parser.isSet(PreviewOption) && parser.isSet(NoPreviewOption))
        throw UsageError(Text::tr("expected --preview or --no-preview, found both"));
    if (parser.isSet(NoPreviewOption))
        return {};
    return parser.isSet(PreviewOption) ? parser.value(PreviewOption) : LookPreview::FindSample();
}

/// Adds a copy of the preset; what the command line says goes before what the preset says.
void Add(LookWriter& writer, const PresetModel& model, const PresetRow& row,
         const LookCredits& said, const QString& previewPhoto)
{
    const QString problem = PresetRows::FindProblem(row);
    if (!problem.isEmpty())
        throw Zorvik::Exception(problem.toStdString(), BOOST_CURRENT_FUNCTION, "ExportCommand",
                                __LINE__);
    const auto original = model.GetPreset(row.index);
    const auto preset = original->CopyAtStart();
    LookCredits credits = original->MakeCredits();
    if (!said.author.empty())
        credits.author = said.author;
    if (!said.licence.empty())
        credits.licence = said.licence;
    for (const auto& [language, name] : said.names)
        credits.names[language] = name;
    preset->SetCredits(credits);
    writer.Add(*preset, LookPreview::Draw(preset->MakeSettings(), previewPhoto));
}

ExitCode ExportCommand::Execute(const QCommandLineParser& parser, Console& console) const
{
    const QString output =
        OutputFile::Read(parser, QLatin1String(LookFormat::Suffix), QStringLiteral(".lumetra"));
    const QString photo = ReadPreview(parser);
    const auto session = CatalogueOptions::Load(parser, console);
    if (!session)
        return ExitCode::SomeFailed;
    const Rows rows = FindPresets(parser, session->GetModel());
    const LookCredits credits = ReadCredits(parser, rows.size());
    LookWriter writer;
    QString done;
    try {
        for (const PresetRow& row : rows) {
            done = row.name;
            Add(writer, session->GetModel(), row, credits, photo);
        }
        writer.Write(output, parser.isSet(PlainOption) ? LookWriter::Packing::Plain
                                                       : LookWriter::Packing::Automatic);
    } catch (const Zorvik::Exception& error) {
        console.Report(QStringLiteral("\"%1\": %2").arg(done, QString::fromUtf8(error.what())));
        return ExitCode::SomeFailed;
    }
    console.PrintLine(output);
    return ExitCode::Done;
}

} // namespace

std::unique_ptr<Command> MakeExportCommand()
{
    return std::make_unique<ExportCommand>();
}

} // namespace LumetraCli
