// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/PresetModel.h"

#include <QStringList>

#include <vector>

namespace LumetraPlugin {

class PresetCollection;

/// Reads presets out of catalogues, and out of preset files of other users.
class JsonImport
{
public:
    static bool IsJsonName(const QString& path);

    /// The presets of the file, with the sliders of the collection's catalogues; they belong to no
    /// model of the collection. `problems` gets a sentence about each preset that cannot be used.
    /// Exception with file and place when there is none that can.
    static std::vector<PresetModel::PresetPtr> Read(PresetCollection& collection,
                                                    const QString& path, QStringList& problems);
};

} // namespace LumetraPlugin
