// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/PresetImport.h"

#include "catalogue/VisibleText.h"
#include "core/ImportFolder.h"
#include "core/JsonImport.h"
#include "core/LutImport.h"
#include "core/PresetCollection.h"
#include "core/PresetMaker.h"
#include "core/PresetNames.h"
#include "core/foreign/ForeignImport.h"
#include "storage/ErrorText.h"

#include <QFileInfo>
#include <QSet>

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

/// One kind of file: how it is known, and what reads it, which is one of two.
struct Kind
{
    bool (*isName)(const QString& path);
    /// Reads looks, on any thread.
    ImportedLooks (*read)(const QString& path, const ImportOptions& options);
    /// Reads whole presets, as they are added, with what the collection has.
    std::vector<PresetPtr> (*readWhenAdded)(PresetCollection& collection, const QString& path,
                                            QStringList& problems);
};

constexpr Kind Kinds[] = {
    {&ForeignImport::IsForeignName, &ForeignImport::Read, nullptr},
    {&JsonImport::IsJsonName, nullptr, &JsonImport::Read},
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
    return QStringLiteral("%1: expected a name that ends in .xmp, .lrtemplate, .pp3, .cube, .3dl, "
                          ".clf, .cc, .ccc, .cdl, .png, .tif or .json")
        .arg(path);
}

/// Collects presets that are still to be added, under names that are free.
class Gathering
{
public:
    explicit Gathering(PresetCollection& collection) : m_collection(collection)
    {
        for (const QString& name : collection.GetModel().GetUserPresetNames())
            m_taken.insert(name);
    }

    void TakeLook(const QString& path, const ImportedLook& look)
    {
        const QString name = MakeName(look);
        Append(path, name, look.remarks,
               PresetMaker::Make(name, look.effects, FullIntensity, m_collection.GetFactory()));
    }

    /// Adds a copy, which has an id of its own.
    void TakePreset(const QString& path, const PresetPtr& preset)
    {
        const PresetPtr copy = preset->Copy();
        const QString name = PresetNames::MakeFreeOf(preset->GetShownName(), m_taken);
        copy->SetName(name.toUtf8().toStdString());
        Append(path, name, {}, copy);
    }

    /// Adds all presets to the model at once.
    std::vector<ImportedPreset> Finish()
    {
        const QModelIndexList indexes = m_collection.GetModel().AddUserPresets(m_presets);
        for (std::size_t i = 0; i < m_added.size(); ++i)
            m_added[i].index = indexes[static_cast<int>(i)];
        return std::move(m_added);
    }

private:
    /// Looks of one name are told apart by their groups before they are numbered.
    QString MakeName(const ImportedLook& look) const
    {
        const QString plain = LumetraHost::VisibleText::WithoutControls(look.name).simplified();
        const QString name = plain.isEmpty() ? QStringLiteral("Look") : plain;
        if (look.group.trimmed().isEmpty() || !m_taken.contains(name))
            return PresetNames::MakeFreeOf(name, m_taken);
        return PresetNames::MakeFreeOf(QStringLiteral("%1 (%2)").arg(name, look.group.simplified()),
                                       m_taken);
    }

    void Append(const QString& path, const QString& name, const std::vector<ImportRemark>& remarks,
                const PresetPtr& preset)
    {
        m_taken.insert(name);
        m_presets.push_back(preset);
        m_added.push_back({path, name, remarks, {}});
    }

    PresetCollection& m_collection;
    QSet<QString> m_taken;
    std::vector<PresetPtr> m_presets;
    std::vector<ImportedPreset> m_added;
};

void TakeFile(const ImportedFile& file, PresetCollection& collection, Gathering& gathering,
              QStringList& problems)
{
    problems += file.problems;
    for (const ImportedLook& look : file.looks)
        gathering.TakeLook(file.path, look);
    if (!file.isReadWhenAdded)
        return;
    try {
        for (const PresetPtr& preset :
             FindKind(file.path)->readWhenAdded(collection, file.path, problems))
            gathering.TakePreset(file.path, preset);
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

ImportReport PresetImport::AddTo(PresetCollection& collection, const ImportedFiles& files)
{
    ImportReport report;
    Gathering gathering(collection);
    for (const ImportedFile& file : files)
        TakeFile(file, collection, gathering, report.problems);
    report.presets = gathering.Finish();
    return report;
}

} // namespace LumetraPlugin
