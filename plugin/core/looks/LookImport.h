// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

namespace LumetraPlugin {

struct ImportedFile;

/// Reads files in which looks come from elsewhere: files with looks, packs of files, and pictures
/// that tell of their looks.
class LookImport
{
public:
    /// True when the name is that of a file that is read here; the content is not read.
    static bool IsLookName(const QString& path);

    /// Reads the file at `file.path` and fills in what it holds, on any thread, one call at a time.
    /// Exception with file and place when it cannot be used at all.
    static void Read(ImportedFile& file);
};

} // namespace LumetraPlugin
