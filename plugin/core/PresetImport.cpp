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
#include "core/looks/KnownContents.h"
#include "core/looks/LookImport.h"
#include "core/looks/LookReader.h"
#include "storage/ErrorText.h"

#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <iterator>
#include <memory>
#include <optional>

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

/// Collects presets that are still to be added, under names that are free.
class Gathering
{
public:
    explicit Gathering(PresetCollection& collection) : m_collection(collection)
    {
        for (const QString& name : collection.GetModel().GetUserPresetNames())
            m_taken.insert(name);
    }

    /// Adds the look unless the user has it.
    void TakeLook(const QString& path, const ImportedLook& look)
    {
        const QString name = MakeName(look);
        const PresetPtr preset =
            PresetMaker::Make(name, look.effects, FullIntensity, m_collection.GetFactory());
        if (IsNew(path, VisibleNameOf(look), *preset))
            Append(path, name, look.remarks, preset);
    }

    /// Adds those of the presets that the user has not. Names that are taken may be refused.
    void TakeNew(const QString& path, std::vector<PresetPtr> presets,
                 const PresetImport::AskNumbered& askNumbered, QStringList& problems)
    {
        const auto leaveOut = [&presets](const auto& isLeftOut) {
            presets.erase(std::remove_if(presets.begin(), presets.end(), isLeftOut), presets.end());
        };
        leaveOut([&](const PresetPtr& preset) { return !IsNew(path, NameOf(*preset), *preset); });
        const QStringList clashes = FindTaken(presets);
        if (!clashes.isEmpty() && askNumbered && !askNumbered(clashes)) {
            leaveOut([&](const PresetPtr& preset) { return IsTaken(*preset); });
            for (const QString& name : clashes)
                problems.append(
                    PresetImport::tr("%1: \"%2\" is left out: a look of that name is here "
                                     "already")
                        .arg(path, name));
        }
        for (const PresetPtr& preset : presets) {
            const QString name = PresetNames::MakeFreeOf(NameOf(*preset), m_taken);
            preset->SetName(name.toStdString());
            Append(path, name, {}, preset);
        }
    }

    /// Adds a copy, which has an id of its own, unless the user has the look.
    void TakePreset(const QString& path, const PresetPtr& preset)
    {
        const PresetPtr copy = preset->Copy();
        const QString name = PresetNames::MakeFreeOf(preset->GetShownName(), m_taken);
        copy->SetName(name.toUtf8().toStdString());
        if (IsNew(path, preset->GetShownName(), *copy))
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
    const std::vector<KnownLook>& GetKnown() const { return m_known; }

private:
    static QString NameOf(const PresetController& preset)
    {
        return QString::fromStdString(preset.GetName());
    }
    bool IsTaken(const PresetController& preset) const { return m_taken.contains(NameOf(preset)); }
    QStringList FindTaken(const std::vector<PresetPtr>& presets) const
    {
        QStringList names;
        for (const PresetPtr& preset : presets)
            if (IsTaken(*preset))
                names.append(NameOf(*preset));
        return names;
    }

    /// False, after noting it, for a preset whose content the user has. `name` is that in the file.
    bool IsNew(const QString& path, const QString& name, const PresetController& preset)
    {
        if (!m_contents)
            m_contents = std::make_unique<KnownContents>(m_collection);
        const auto knownAs = m_contents->TakeOrFind(preset);
        if (knownAs)
            m_known.push_back({path, name, *knownAs});
        return !knownAs;
    }

    static QString VisibleNameOf(const ImportedLook& look)
    {
        const QString name = LumetraHost::VisibleText::WithoutControls(look.name).simplified();
        return name.isEmpty() ? QStringLiteral("Look") : name;
    }

    /// Looks of one name are told apart by their groups before they are numbered.
    QString MakeName(const ImportedLook& look) const
    {
        const QString name = VisibleNameOf(look);
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
    std::vector<KnownLook> m_known;
    std::unique_ptr<KnownContents> m_contents; ///< made when somebody asks
};

void TakeDocuments(const ImportedFile& file, PresetCollection& collection, Gathering& gathering,
                   const PresetImport::AskNumbered& askNumbered, QStringList& problems)
{
    std::vector<PresetPtr> presets;
    for (const LumetraHost::JsonDocument& document : file.documents)
        try {
            for (const PresetPtr& preset :
                 LookReader::Read(document, collection.GetFactory(), problems))
                presets.push_back(preset);
        } catch (const std::exception& error) {
            problems.append(ErrorText::Show(error));
        }
    gathering.TakeNew(file.path, std::move(presets), askNumbered, problems);
}

void TakeFile(const ImportedFile& file, PresetCollection& collection, Gathering& gathering,
              const PresetImport::AskNumbered& askNumbered, QStringList& problems)
{
    problems += file.problems;
    TakeDocuments(file, collection, gathering, askNumbered, problems);
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
                                 const AskNumbered& askNumbered)
{
    ImportReport report;
    Gathering gathering(collection);
    for (const ImportedFile& file : files)
        TakeFile(file, collection, gathering, askNumbered, report.problems);
    report.presets = gathering.Finish();
    report.known = gathering.GetKnown();
    return report;
}

} // namespace LumetraPlugin
