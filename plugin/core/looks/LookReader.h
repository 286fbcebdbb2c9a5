// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/PresetModel.h"
#include "storage/JsonDocument.h"

#include <QStringList>

#include <vector>

namespace LumetraPlugin {

class PresetControllerFactory;

/// Makes presets of looks that came from elsewhere, see LookFormat. Register the engine's effects
/// first.
class LookReader
{
public:
    /// True for the name of a file with looks; the content is not read.
    static bool IsLookName(const QString& path);

    /// The text of a file: plain, or from a zip archive. Exception with the file and what was
    /// expected.
    static LumetraHost::JsonDocument ReadFile(const QString& path);

    /// A preset for each look of the document, which no model has yet. Each is checked by itself:
    /// `problems` gets a sentence with the place of everything that cannot be used. Exception with
    /// the place for a document that is no look file, or was made by a newer program.
    static std::vector<PresetModel::PresetPtr> Read(const LumetraHost::JsonDocument& document,
                                                    PresetControllerFactory& factory,
                                                    QStringList& problems);
    /// A sentence with the place for each name of the document that is too long for a preset. An
    /// import decides what becomes of these looks, so that Read() takes them.
    static QStringList FindLongNames(const LumetraHost::JsonDocument& document);
};

} // namespace LumetraPlugin
