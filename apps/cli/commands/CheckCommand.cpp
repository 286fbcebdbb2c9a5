// SPDX-License-Identifier: GPL-2.0-or-later
#include "commands/Commands.h"

#include "EffectPresets/EffectPresetModel.h"
#include "Zorvik/Exception.h"
#include "catalogue/CatalogueParser.h"
#include "console/Console.h"
#include "console/Text.h"
#include "console/UsageError.h"
#include "core/CatalogueLocations.h"
#include "core/LutImport.h"
#include "core/PresetControllerFactory.h"
#include "core/PresetSession.h"
#include "core/looks/LookReader.h"
#include "core/userstore/UserStoreChecker.h"
#include "lut/LutReader.h"
#include "presets/TableNotes.h"
#include "storage/FileIdentity.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <optional>
#include <set>
#include <utility>
#include <vector>

namespace LumetraCli {
namespace {

using LumetraHost::CatalogueParser;
using LumetraHost::CatalogueReport;
using LumetraHost::CatalogueReports;
using LumetraHost::FileIdentity;
using LumetraHost::JsonDocument;
using LumetraPlugin::LookReader;
using LumetraPlugin::PresetControllerFactory;
using LumetraPlugin::UserStoreChecker;

/// Checks a store by itself; adds any other file to the catalogues. Returns the document where it
/// could be read.
std::optional<JsonDocument> TakeFile(const QString& file, CatalogueParser& catalogues,
                                     CatalogueReports& reports)
{
    try {
        const JsonDocument document = JsonDocument::Read(file);
        if (UserStoreChecker::IsStore(document))
            UserStoreChecker::Check(document, PresetControllerFactory::GetKinds(), reports);
        else
            catalogues.AddDocument(document, file);
        return document;
    } catch (const Zorvik::Exception&) {
        catalogues.AddFile(file); // AddFile() reports the error that was found here.
    }
    return std::nullopt;
}

/// Adds the notes of files without errors: whoever mends a file has enough to read.
void AddTableNotes(const std::vector<JsonDocument>& documents, CatalogueReports& reports)
{
    for (const JsonDocument& document : documents) {
        const auto& all = reports.GetAll();
        const bool isWrong = std::any_of(all.begin(), all.end(), [&](const auto& report) {
            return report.severity == CatalogueReport::Severity::Error &&
                   report.place.file == document.GetName();
        });
        if (!isWrong)
            TableNotes::Add(document, reports);
    }
}

/// Adds the catalogues that are read even if they are not named: their ids are taken and their
/// sliders offered. One that a checked file would replace, by its name, is left out.
void AddOtherCatalogues(const QStringList& files, CatalogueParser& catalogues)
{
    std::set<FileIdentity> checked;
    std::set<QString> names;
    for (const QString& file : files) {
        checked.insert(FileIdentity::Of(file));
        names.insert(QFileInfo(file).fileName());
    }
    for (const QString& file : LumetraPlugin::CatalogueLocations::FindFiles())
        if (checked.count(FileIdentity::Of(file)) == 0 &&
            names.count(QFileInfo(file).fileName()) == 0)
            catalogues.AddFile(file);
}

bool CheckJson(const QStringList& files, Console& console)
{
    LumetraPlugin::PresetSession session("lumetra.check");
    CatalogueParser catalogues(PresetControllerFactory::GetKinds(),
                               LumetraHost::LutReader::ReadTable);
    CatalogueReports reports;
    std::vector<std::string> names;
    std::vector<JsonDocument> documents;
    if (!files.isEmpty())
        AddOtherCatalogues(files, catalogues);
    for (const QString& file : files) {
        names.push_back(file.toStdString());
        if (auto document = TakeFile(file, catalogues, reports))
            documents.push_back(std::move(*document));
    }
    catalogues.Parse(session.GetModel(), nullptr);
    for (const CatalogueReport& report : catalogues.GetReports())
        if (std::find(names.begin(), names.end(), report.place.file) != names.end())
            reports.Add(report);
    AddTableNotes(documents, reports);
    reports.Sort(names);
    for (const CatalogueReport& report : reports.GetAll())
        console.PrintLine(QString::fromStdString(report.ToText()));
    return reports.GetErrorCount() == 0;
}

/// "file:line: message" or "file: message" with "error: " in front of the message.
QString MarkError(const QString& file, const QString& description)
{
    const QString pattern = QStringLiteral("^(%1(:\\d+)?: )").arg(QRegularExpression::escape(file));
    QString text = description;
    return text.replace(QRegularExpression(pattern), QStringLiteral("\\1error: "));
}

bool CheckLuts(const QStringList& files, Console& console)
{
    bool isGood = true;
    for (const QString& file : files)
        try {
            LumetraHost::LutReader::Read(file);
        } catch (const Zorvik::Exception& error) {
            console.PrintLine(MarkError(file, QString::fromUtf8(error.what())));
            isGood = false;
        }
    return isGood;
}

bool CheckLooks(const QStringList& files, Console& console)
{
    LumetraPlugin::PresetSession session("lumetra.check");
    bool isGood = true;
    for (const QString& file : files) {
        QStringList problems;
        try {
            const JsonDocument document = LookReader::ReadFile(file);
            LookReader::Read(document, session.GetFactory(), problems);
            problems += LookReader::FindLongNames(document);
        } catch (const Zorvik::Exception& error) {
            problems.append(MarkError(file, QString::fromUtf8(error.what())));
        }
        for (const QString& problem : problems)
            console.PrintLine(problem);
        isGood = isGood && problems.isEmpty();
    }
    return isGood;
}

/// Checks catalogues, the user's stores, files with looks and LUT files. Reports each error with
/// file, line and column.
class CheckCommand : public Command
{
public:
    CheckCommand()
        : Command(QStringLiteral("check"),
                  QT_TRANSLATE_NOOP(
                      "LumetraCli::Text",
                      "Checks catalogues, files of your own presets, looks and LUT files."))
    {
    }

protected:
    void AddOptions(OptionTable& options) const override;
    ExitCode Execute(const QCommandLineParser& parser, Console& console) const override;
};

void CheckCommand::AddOptions(OptionTable& options) const
{
    options.AddArgument(
        QStringLiteral("FILE"),
        Text::tr("Catalogues, taken together with the installed ones, files of your own "
                 "presets, files with looks (.lumetra) and LUT files."),
        QStringLiteral("FILE..."));
}

/// The reports are the data of this command, so they go to stdout.
ExitCode CheckCommand::Execute(const QCommandLineParser& parser, Console& console) const
{
    const QStringList files = parser.positionalArguments().mid(1);
    if (files.isEmpty())
        throw UsageError(Text::tr("expected at least one file"));
    QStringList json, luts, looks;
    for (const QString& file : files)
        (LookReader::IsLookName(file)                      ? looks
         : LumetraPlugin::LutImport::IsLutName(file, true) ? luts
                                                           : json)
            .append(file);
    const bool isJsonGood = CheckJson(json, console);
    const bool areLutsGood = CheckLuts(luts, console);
    const bool areLooksGood = CheckLooks(looks, console);
    return isJsonGood && areLutsGood && areLooksGood ? ExitCode::Done : ExitCode::SomeFailed;
}

} // namespace

std::unique_ptr<Command> MakeCheckCommand()
{
    return std::make_unique<CheckCommand>();
}

} // namespace LumetraCli
