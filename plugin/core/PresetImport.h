// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QModelIndex>
#include <QString>
#include <QStringList>

#include <vector>

namespace LumetraPlugin {

class PresetCollection;

/// Makes presets of the user out of LUT files, catalogues, and preset files of other users as JSON.
class PresetImport
{
public:
    /// True when the name is that of a file that can be imported; the content is not read.
    static bool IsImportable(const QString& path);

    /// Appends a preset for each look of the file to the user's group and announces it; nothing is
    /// saved yet. Names that the user has already are numbered; every preset has an id of its own.
    /// Exception with file and place when the file cannot be used, or has nothing that is new;
    /// nothing is added then. `problems` gets a sentence about each preset that cannot be used.
    static std::vector<QModelIndex> AddTo(PresetCollection& collection, const QString& path,
                                          QStringList& problems);
};

} // namespace LumetraPlugin
