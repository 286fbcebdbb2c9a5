// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/ImportedLook.h"

namespace LumetraPlugin {

/// Reads looks of other programs: .xmp, .lrtemplate and .pp3. What their settings become stands in
/// MappingTable.
class ForeignImport
{
public:
    /// True for names that end as those of such files do; the content is not read.
    static bool IsForeignName(const QString& path);

    /// The look in the file, under its own name or else the file's. Zorvik::Exception that names
    /// the file and says what was expected, also where nothing of the look can be carried over;
    /// NoLookError for a sound file without a look. Register the engine's effects first. May run
    /// on any thread.
    static ImportedLooks Read(const QString& path, const ImportOptions& options);
};

} // namespace LumetraPlugin
