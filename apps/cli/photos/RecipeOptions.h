// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "exporting/ExportRecipe.h"
#include "exporting/batch/OutputPlan.h"

#include <QCommandLineParser>

namespace LumetraCli {

/// The options for the form of exported files: --recipe, --quality, --size, --metadata and the
/// like.
class RecipeOptions
{
public:
    static void Add(QCommandLineParser& parser);

    /// A recipe without look, records and format. UsageError for values out of their ranges.
    static LumetraHost::ExportRecipe Read(const QCommandLineParser& parser);

    /// UsageError when one of the jobs' outputs is of a format that cannot have the recipe's depth.
    static void Check(const LumetraHost::ExportRecipe& recipe,
                      const std::vector<LumetraHost::PhotoJob>& jobs);
};

} // namespace LumetraCli
