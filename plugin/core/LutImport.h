// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/ImportedLook.h"

#include <QModelIndex>
#include <QString>
#include <QStringList>

#include <vector>

namespace LumetraPlugin {

class PresetCollection;

/// Makes presets of the user out of LUT files: tables, colour decision lists, HaldCLUT pictures
/// (see LumetraHost::LutReader).
class LutImport
{
public:
    /// True for names that end as those of LUT files do; pictures only when `withPictures`.
    static bool IsLutName(const QString& path, bool withPictures);

    /// The looks of the file, by the names that they give themselves, else by the file's; the group
    /// is the file's name then. Exception with file and place when it cannot be used.
    static ImportedLooks Read(const QString& path, const ImportOptions& options);

    /// Appends a preset for each look of the file to the user's group and announces it; nothing is
    /// saved yet. Each has an intensity, at its full strength, an id of its own and the name of the
    /// file, or of the correction in it, shortened, and numbered where one of the user's presets
    /// has it already. Exception with
    /// file and place when the file cannot be used; nothing is added then.
    static std::vector<QModelIndex> AddTo(PresetCollection& collection, const QString& path);
    /// Numbers names that are in `taken` instead, for presets that are not saved.
    static std::vector<QModelIndex> AddTo(PresetCollection& collection, const QString& path,
                                          QStringList taken);
};

} // namespace LumetraPlugin
