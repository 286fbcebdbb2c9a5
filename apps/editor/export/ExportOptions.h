// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "exporting/ExportRecipe.h"

#include <QString>

namespace LumetraEditor {

/// The place and the form of an export.
struct ExportOptions
{
    QString path;
    LumetraHost::ExportRecipe recipe; ///< the dialog leaves the look and the records to the job
    bool mayReplace = true;           ///< false: a file that appears before the export ends stays
};

} // namespace LumetraEditor
