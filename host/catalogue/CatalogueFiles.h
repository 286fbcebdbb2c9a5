// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStringList>

namespace LumetraHost {

/// Where catalogue files are: "lumetra/catalogue/*.json" below data folders, without the schemas
/// "*.schema.json" that may lie beside them.
class CatalogueFiles
{
public:
    /// The data folders of this system, the least important first: `installed` (the program's own,
    /// left out when empty), those of XDG_DATA_DIRS, the user's.
    static QStringList GetDataFolders(const QString& installed);

    /// The catalogue files below `dataFolders`, in their order and by name. A file replaces one of
    /// the same name from a less important folder, in its place, so that a user can change a
    /// shipped catalogue.
    static QStringList Find(const QStringList& dataFolders);

    /// The catalogue files right in `folder`, by name.
    static QStringList FindIn(const QString& folder);
};

} // namespace LumetraHost
