// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/JsonImport.h"

#include "Zorvik/Exception.h"
#include "catalogue/CatalogueParser.h"
#include "core/PresetCollection.h"
#include "core/PresetControllerFactory.h"
#include "core/userstore/UserPresetStore.h"
#include "core/userstore/UserStoreChecker.h"
#include "lut/LutReader.h"
#include "storage/JsonDocument.h"

#include <boost/current_function.hpp>

namespace LumetraPlugin {
namespace {

using LumetraHost::CatalogueParser;
using LumetraHost::CatalogueReport;
using LumetraHost::JsonDocument;
using PresetPtr = PresetModel::PresetPtr;

[[noreturn]] void Fail(const std::string& description, const char* function, int line)
{
    throw Zorvik::Exception(description, function, "core/JsonImport", line);
}

/// The errors about this file.
QStringList ErrorsOf(const std::vector<CatalogueReport>& reports, const std::string& file)
{
    QStringList errors;
    for (const CatalogueReport& report : reports)
        if (report.severity == CatalogueReport::Severity::Error && report.place.file == file)
            errors.append(QString::fromStdString(report.ToText()));
    return errors;
}

/// Collects the presets of the groups from `first` on whose effects are there, with their tables,
/// and a sentence for each other one.
std::vector<PresetPtr> CollectPresets(const PresetModel& model, int first, const QString& path,
                                      QStringList& problems)
{
    std::vector<PresetPtr> presets;
    for (int g = first; g < model.rowCount(); ++g) {
        const QModelIndex group = model.index(g, 0);
        for (int i = 0; i < model.rowCount(group); ++i) {
            const PresetPtr preset = model.GetPreset(model.index(i, 0, group));
            const std::string problem = preset->FindProblem(LumetraHost::ContentCheck::Content);
            if (!problem.empty())
                problems.append(
                    QStringLiteral("%1: \"%2\" cannot be used: %3")
                        .arg(path, preset->GetShownName(), QString::fromStdString(problem)));
            else if (!preset->IsDownloadable())
                presets.push_back(preset);
            else
                problems.append(QStringLiteral("%1: \"%2\": expected its effects, found only the "
                                               "name of a resource, \"%3\"")
                                    .arg(path, preset->GetShownName(),
                                         QString::fromStdString(preset->GetResource())));
        }
    }
    return presets;
}

} // namespace

bool JsonImport::IsJsonName(const QString& path)
{
    return path.endsWith(QLatin1String(".json"), Qt::CaseInsensitive);
}

/// Reads into a separate model, after this program's catalogues, whose sliders the presets get.
std::vector<PresetPtr> JsonImport::Read(PresetCollection& collection, const QString& path,
                                        QStringList& problems)
{
    const JsonDocument document = JsonDocument::Read(path);
    CatalogueParser parser(PresetControllerFactory::GetKinds(), LumetraHost::LutReader::ReadTable);
    for (const QString& file : collection.GetCatalogueFiles())
        parser.AddFile(file);
    PresetModel model(collection.GetSharedFactory());
    if (UserStoreChecker::IsStore(document)) {
        UserPresetStore store(path, collection.GetSharedFactory());
        parser.Parse(model, store.Load());
        for (const std::string& report : store.GetReports())
            problems.append(QString::fromStdString(report));
    } else {
        parser.AddDocument(document, path);
        parser.Parse(model, nullptr);
    }
    problems += ErrorsOf(parser.GetReports(), document.GetName());
    const auto presets =
        CollectPresets(model, collection.GetModel().rowCount() - 1, path, problems);
    if (presets.empty())
        Fail(problems.isEmpty() ? path.toStdString() + ": expected at least one preset, found none"
                                : problems.takeFirst().toStdString(),
             BOOST_CURRENT_FUNCTION, __LINE__);
    return presets;
}

} // namespace LumetraPlugin
