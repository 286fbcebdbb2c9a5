// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/ImportedLook.h"
#include "storage/JsonDocument.h"

#include <QCoreApplication>
#include <QPersistentModelIndex>
#include <QStringList>

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
    std::vector<LumetraHost::JsonDocument> documents; ///< with looks, see LookReader
};

using ImportedFiles = std::vector<ImportedFile>;

/// A preset that an import has made.
struct ImportedPreset
{
    QString path; ///< of its file
    QString name;
    QString nameInFile; ///< or its beginning, where that is too long for a preset; else empty
    std::vector<ImportRemark> remarks;
    QPersistentModelIndex index;
};

/// A look that the user has already.
struct KnownLook
{
    QString path;    ///< of its file
    QString name;    ///< in the file
    QString knownAs; ///< the name of the user's preset
};

/// The outcome of an import.
struct ImportReport
{
    std::vector<ImportedPreset> presets;
    std::vector<KnownLook> known;
    QStringList problems; ///< sentences, with file, about all that was not imported
    int tooLong = 0;      ///< how many of the problems are names that are too long
};

/// How an import names its presets.
struct ImportNaming
{
    /// Is told names of looks; returns true to import them under other names, false to leave them
    /// out.
    using Ask = std::function<bool(const QStringList& names)>;

    /// Asks about names that looks of the user or of a catalogue have already: true numbers them.
    /// Empty: they are numbered.
    Ask askNumbered = {};
    /// Asks about names that are too long: true shortens them. Empty: they are left out.
    Ask askShortened = {};
    /// True to take names of the catalogues as they are; nothing is asked about those.
    bool sharesCatalogueNames = false;
    /// The name of the one new look in place of its own. With several new looks none is imported,
    /// which is a problem of the report. Empty: every look has its own.
    QString name = {};
};

/// Makes presets of the user out of files: files with looks, packs of files, pictures that tell of
/// their looks, LUT files, looks of other programs, catalogues, and preset files of other users as
/// JSON. Reading is apart from adding, so that it may take its time
/// on another thread. Problems are in the user's language as far as the program has translations;
/// mistakes in the content of files are told in English.
class PresetImport
{
    Q_DECLARE_TR_FUNCTIONS(LumetraPlugin::PresetImport)

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
    /// saved yet. Names that looks have already, the user's or a catalogue's, get their file's
    /// group in brackets, or a number; every preset has an id of its own. A look is left out where
    /// the user has one with the same content, under whatever name; nothing is asked about it. To
    /// be called on the thread of the model.
    static ImportReport AddTo(PresetCollection& collection, const ImportedFiles& files,
                              const ImportNaming& naming = {});
};

} // namespace LumetraPlugin
