// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "console/OptionTable.h"
#include "exporting/ExportRecipe.h"
#include "exporting/batch/OutputPlan.h"

#include <QCommandLineParser>

#include <optional>
#include <vector>

namespace LumetraCli {

/// The options for the form of exported files: --format, --quality, --size, --metadata and the
/// like.
class RecipeOptions
{
public:
    static void Add(OptionTable& options);

    /// The format of --format or --recipe; nothing where the names of the outputs say it.
    /// UsageError.
    static std::optional<LumetraHost::PhotoFormat> ReadFormat(const QCommandLineParser& parser);
    /// A recipe without look and records, whose format is that of ReadFormat(). UsageError for
    /// values out of their ranges.
    static LumetraHost::ExportRecipe Read(const QCommandLineParser& parser);

    /// The extension of that format; empty where the names of the outputs say the format.
    static QString ReadExtension(const QCommandLineParser& parser);

    /// UsageError when one of the jobs' outputs is of another format than that of --format, or of
    /// one that cannot have the recipe's depth.
    static void Check(const QCommandLineParser& parser, const LumetraHost::ExportRecipe& recipe,
                      const std::vector<LumetraHost::PhotoJob>& jobs);
};

} // namespace LumetraCli
