// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStringList>

namespace LumetraPlugin {

/// The places of this program's presets. Needs the application object.
class CatalogueLocations
{
public:
    /// The catalogue files that are read without being named, in order: those of the installed data
    /// folder, of XDG_DATA_DIRS, of the user's. A program in its build tree uses those of its
    /// sources for the installed ones.
    static QStringList FindFiles();
    /// The folders in which resources of presets are looked for: "lumetra/resources" below the same
    /// data folders, the user's first.
    static QStringList GetResourceFolders();
    /// The path of the picture that is installed with the catalogues; it may not be there.
    static QString GetSamplePhoto();
};

} // namespace LumetraPlugin
