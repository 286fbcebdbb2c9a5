// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/PresetImport.h"

#include "catalogue/VisibleText.h"
#include "core/ImportFolder.h"
#include "core/ImportGathering.h"
#include "core/JsonImport.h"
#include "core/LutImport.h"
#include "core/PresetCollection.h"
#include "core/PresetMaker.h"
#include "core/foreign/ForeignImport.h"
#include "core/looks/LookImport.h"
#include "core/looks/LookReader.h"
#include "storage/ErrorText.h"

#include <QFileInfo>

#include <algorithm>
#include <iterator>

namespace LumetraPlugin {
namespace {

using LumetraHost::ErrorText;
using PresetPtr = PresetModel::PresetPtr;

constexpr int FullIntensity = 100;

bool IsLutName(const QString& path)
{
    return LutImport::IsLutName(path, true);
}

/// One kind of file: how it is known, and what reads it, which is one of three.
struct Kind
{
    bool (*isName)(const QString& path);
    /// Reads looks, on any thread.
    ImportedLooks (*read)(const QString& path, const ImportOptions& options);
    /// Reads whole presets, as they are added, with what the collection has.
    std::vector<PresetPtr> (*readWhenAdded)(PresetCollection& collection, const QString& path,
                                            QStringList& problems);
    /// Reads whatever the file holds, on any thread.
    void (*readAll)(ImportedFile& file) = nullptr;
};

constexpr Kind Kinds[] = {
    {&ForeignImport::IsForeignName, &ForeignImport::Read, nullptr},
    {&JsonImport::IsJsonName, nullptr, &JsonImport::Read},
    {&LookImport::IsLookName, nullptr, nullptr, &LookImport::Read},
    {&IsLutName, &LutImport::Read, nullptr},
};

/// Null for a file that none of them reads.
const Kind* FindKind(const QString& path)
{
    for (const Kind& kind : Kinds)
        if (kind.isName(path))
            return &kind;
    return nullptr;
}

QString DescribeUnknown(const QString& path)
{
    return PresetImport::tr("%1: expected a name that ends in .lumetra, .xmp, .lrtemplate, .pp3, "
                            ".cube, .3dl, .clf, .cc, .ccc, .cdl, .png, .tif, .jpg, .webp, .zip or "
                            ".json")
        .arg(path);
}

QString NameOf(const PresetController& preset)
{
    return QString::fromStdString(preset.GetName());
}

/// The name of a look, which may come from anywhere, in one line.
QString VisibleNameOf(const ImportedLook& look)
{
    const QString name = LumetraHost::VisibleText::WithoutControls(look.name).simplified();
    return name.isEmpty() ? QStringLiteral("Look") : name;
}

void TakeDocuments(const ImportedFile& file, PresetCollection& collection,
                   ImportGathering& gathering, QStringList& problems)
{
    for (const LumetraHost::JsonDocument& document : file.documents)
        try {
            for (const PresetPtr& preset :
                 LookReader::Read(document, collection.GetFactory(), problems))
                gathering.Take({file.path, NameOf(*preset), {}, {}, preset});
        } catch (const std::exception& error) {
            problems.append(ErrorText::Show(error));
        }
}

void TakeLooks(const ImportedFile& file, PresetCollection& collection, ImportGathering& gathering)
{
    for (const ImportedLook& look : file.looks) {
        const QString name = VisibleNameOf(look);
        gathering.Take(
            {file.path, name, look.group.simplified(), look.remarks,
             PresetMaker::Make(name, look.effects, FullIntensity, collection.GetFactory())});
    }
}

/// Takes copies, which have ids of their own.
void TakePresets(const ImportedFile& file, PresetCollection& collection, ImportGathering& gathering,
                 QStringList& problems)
{
    try {
        for (const PresetPtr& preset :
             FindKind(file.path)->readWhenAdded(collection, file.path, problems))
            gathering.Take({file.path, preset->GetShownName(), {}, {}, preset->Copy()});
    } catch (const std::exception& error) {
        problems.append(ErrorText::Show(error));
    }
}

} // namespace

bool PresetImport::IsImportable(const QString& path)
{
    return FindKind(path) != nullptr;
}

ImportedFile PresetImport::Read(const QString& path, const ImportOptions& options)
{
    ImportedFile file;
    file.path = path;
    const Kind* const kind = FindKind(path);
    try {
        if (!kind)
            file.problems.append(DescribeUnknown(path));
        else if (kind->readAll)
            kind->readAll(file);
        else if (kind->read)
            file.looks = kind->read(path, options);
        else
            file.isReadWhenAdded = true;
    } catch (const std::exception& error) {
        file.problems.append(ErrorText::Show(error));
    }
    return file;
}

ImportedFiles PresetImport::ReadAll(const QStringList& paths, const ImportOptions& options,
                                    const Progress& progress)
{
    ImportedFiles files(1);
    const QStringList found = ImportFolder::FindFiles(paths, files.front().problems);
    ImportOptions all = options;
    std::copy_if(paths.begin(), paths.end(), std::back_inserter(all.tableFolders),
                 [](const QString& path) { return QFileInfo(path).isDir(); });
    for (int i = 0; i < found.size(); ++i) {
        if (!progress(i, found.size(), found[i]))
            return {};
        files.push_back(Read(found[i], all));
    }
    return files;
}

ImportReport PresetImport::AddTo(PresetCollection& collection, const ImportedFiles& files,
                                 const ImportNaming& naming)
{
    QStringList problems;
    ImportGathering gathering(collection, naming);
    for (const ImportedFile& file : files) {
        problems += file.problems;
        TakeDocuments(file, collection, gathering, problems);
        TakeLooks(file, collection, gathering);
        if (file.isReadWhenAdded)
            TakePresets(file, collection, gathering, problems);
    }
    ImportReport report = gathering.Finish();
    report.problems = problems + report.problems;
    return report;
}

} // namespace LumetraPlugin
