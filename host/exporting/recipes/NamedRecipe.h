// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "exporting/ExportRecipe.h"

#include <QString>

#include <vector>

namespace LumetraHost {

/// The form of an export that the user has given a name, with the place of its files.
struct NamedRecipe
{
    QString name;        ///< unique among the user's recipes, never empty
    ExportRecipe recipe; ///< without look and records
    /// The folder of the new files: absolute, or relative to that of the photo; empty: that of the
    /// photo itself.
    QString folder;
    /// The name of the new file, without its extension, with placeholders such as {name}.
    QString file = QStringLiteral("{name}");

    /// The name of the output with the placeholders of both and the extension of the format.
    QString GetOutputTemplate() const;

    /// The recipes of users who have none of their own: full size, and 2048 pixels.
    static std::vector<NamedRecipe> GetShipped();
};

} // namespace LumetraHost
