// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

namespace LumetraPlugin {

struct ImportedFile;

/// Reads zip archives in which people share looks: packs of LUT files, and of files with looks.
class LookPack
{
public:
    /// True for the name of a zip archive; the content is not read.
    static bool IsPackName(const QString& path);

    /// Fills in the looks of each file in the archive at `file.path`. Files of other kinds, such as
    /// licences and pictures that are no tables, are passed over. `file.problems` gets a sentence
    /// "path: entry: …" for each one that cannot be used. Exception with the path for an archive
    /// that cannot be read, or has no file with looks.
    static void Read(ImportedFile& file);
};

} // namespace LumetraPlugin
