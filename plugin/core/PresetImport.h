// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/ImportedLook.h"

#include <QPersistentModelIndex>

#include <functional>
#include <vector>

namespace LumetraPlugin {

class PresetCollection;

/// A file that was read for import and is in no model yet.
struct ImportedFile
{
    QString path;
    ImportedLooks looks;
    QStringList problems; ///< sentences, with file, about all that cannot be used
    /// True for files whose presets are made of this program's catalogues: they are read as they
    /// are added.
    bool isReadWhenAdded = false;
};

using ImportedFiles = std::vector<ImportedFile>;

/// A preset that an import has made.
struct ImportedPreset
{
    QString path; ///< of its file
    QString name;
    std::vector<ImportRemark> remarks;
    QPersistentModelIndex index;
};

/// What came of an import.
struct ImportReport
{
    std::vector<ImportedPreset> presets;
    QStringList problems; ///< sentences, with file, about all that was not imported
};

/// Makes presets of the user out of files: LUT files, looks of other programs, catalogues, and
/// preset files of other users as JSON. Reading is apart from adding, so that it may take its time
/// on another thread.
class PresetImport
{
public:
    /// Is told how many files of how many are done, and the next one's path; returns false to end.
    using Progress = std::function<bool(int done, int total, const QString& path)>;

    /// True when the name is that of a file that can be imported; the content is not read.
    static bool IsImportable(const QString& path);

    /// Reads one file, whatever it holds. May run on any thread, one call at a time. Register the
    /// engine's effects first.
    static ImportedFile Read(const QString& path, const ImportOptions& options);
    /// Finds the files that `paths` stand for (see ImportFolder) and reads them. Problems that
    /// belong to a folder come first. Tables are looked for in these folders too. Nothing at all
    /// when `progress` has ended it.
    static ImportedFiles ReadAll(const QStringList& paths, const ImportOptions& options,
                                 const Progress& progress);

    /// Appends a preset for each look to the user's group, announced as one insertion; nothing is
    /// saved yet. Names that the user has already get their file's group in brackets, or a number;
    /// every preset has an id of its own. To be called on the thread of the model.
    static ImportReport AddTo(PresetCollection& collection, const ImportedFiles& files);
};

} // namespace LumetraPlugin
