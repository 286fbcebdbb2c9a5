// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/PresetImport.h"

#include "Zorvik/Exception.h"
#include "catalogue/CatalogueParser.h"
#include "catalogue/UserStoreChecker.h"
#include "core/LutImport.h"
#include "core/PresetCollection.h"
#include "core/PresetControllerFactory.h"
#include "core/PresetNames.h"
#include "storage/JsonDocument.h"

#include <boost/current_function.hpp>

namespace LumetraPlugin {
namespace {

using LumetraHost::CatalogueParser;
using LumetraHost::CatalogueReport;
using LumetraHost::CatalogueReports;
using LumetraHost::JsonDocument;
using LumetraHost::UserStoreChecker;
using PresetPtr = PresetModel::PresetPtr;

[[noreturn]] void Fail(const std::string& description, const char* function, int line)
{
    throw Zorvik::Exception(description, function, "core/PresetImport", line);
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

/// The presets of the groups from `first` on whose effects are there.
std::vector<PresetPtr> CollectPresets(const PresetModel& model, int first)
{
    std::vector<PresetPtr> presets;
    for (int g = first; g < model.rowCount(); ++g) {
        const QModelIndex group = model.index(g, 0);
        for (int i = 0; i < model.rowCount(group); ++i) {
            const PresetPtr preset = model.GetPreset(model.index(i, 0, group));
            if (!preset->IsDownloadable())
                presets.push_back(preset);
        }
    }
    return presets;
}

/// Read into a model of its own, after this program's catalogues, whose sliders the presets get.
std::vector<PresetPtr> ReadJson(PresetCollection& collection, const QString& path,
                                QStringList& problems)
{
    const JsonDocument document = JsonDocument::Read(path);
    CatalogueParser parser(PresetControllerFactory::GetKinds());
    for (const QString& file : collection.GetCatalogueFiles())
        parser.AddFile(file);
    const bool isStore = UserStoreChecker::IsStore(document);
    if (isStore) {
        CatalogueReports reports;
        UserStoreChecker::Check(document, PresetControllerFactory::GetKinds(), reports);
        problems = ErrorsOf(reports.GetAll(), document.GetName());
    } else {
        parser.AddDocument(document);
    }
    if (isStore && !problems.isEmpty())
        Fail(problems.takeFirst().toStdString(), BOOST_CURRENT_FUNCTION, __LINE__);

    PresetModel model(collection.GetSharedFactory());
    parser.Parse(model,
                 isStore ? Zorvik::Brassel::ConstSerializerPtr(document.GetRoot()) : nullptr);
    problems += ErrorsOf(parser.GetReports(), document.GetName());
    const auto presets = CollectPresets(model, collection.GetModel().rowCount() - 1);
    if (presets.empty())
        Fail(problems.isEmpty() ? path.toStdString() + ": expected at least one preset, found none"
                                : problems.takeFirst().toStdString(),
             BOOST_CURRENT_FUNCTION, __LINE__);
    return presets;
}

/// Copies have ids of their own.
std::vector<QModelIndex> AddCopies(PresetCollection& collection,
                                   const std::vector<PresetPtr>& presets)
{
    PresetModel& model = collection.GetModel();
    std::vector<PresetPtr> added;
    for (const PresetPtr& preset : presets) {
        const PresetPtr copy = preset->Copy();
        const QString name = QString::fromStdString(preset->GetName());
        copy->SetName(
            PresetNames::MakeFree(name, model.GetUserPresetNames()).toUtf8().toStdString());
        model.AddUserPreset(copy);
        added.push_back(copy);
    }
    // An index is good until the next insertion only.
    std::vector<QModelIndex> indexes;
    for (const PresetPtr& preset : added)
        indexes.push_back(model.FindPreset(*preset));
    return indexes;
}

bool IsJson(const QString& path)
{
    return path.endsWith(QLatin1String(".json"), Qt::CaseInsensitive);
}

} // namespace

bool PresetImport::IsImportable(const QString& path)
{
    return IsJson(path) || LutImport::IsLutName(path, true);
}

std::vector<QModelIndex> PresetImport::AddTo(PresetCollection& collection, const QString& path,
                                             QStringList& problems)
{
    if (!IsJson(path))
        return LutImport::AddTo(collection, path);
    return AddCopies(collection, ReadJson(collection, path, problems));
}

} // namespace LumetraPlugin
