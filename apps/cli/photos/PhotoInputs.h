// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "console/OptionTable.h"
#include "exporting/batch/OutputPlan.h"

#include <QCommandLineParser>

#include <vector>

namespace LumetraCli {

/// The photos of a command line: files, folders, a list in a file, or the standard input.
class PhotoInputs
{
public:
    /// The argument and option value that stands for the standard input or output.
    static const QString Pipe;
    /// The name of a photo from the standard input, for messages and for {name}.
    static const QString PipedName;

    /// Adds the argument PHOTO, --recursive, --files-from, --null and --again.
    static void Add(OptionTable& options);

    /// The photos in the order of the command line, those of a list last; folders are replaced by
    /// their photos. Folders and names that cannot be used are photos with a problem. Reads the
    /// list, and nothing of the photos. UsageError when no photo is named, and for a list that
    /// cannot be read.
    static std::vector<LumetraHost::PhotoInput> Read(const QCommandLineParser& parser);

    /// True when results of an earlier run are taken like any other photo.
    static bool TakesResults(const QCommandLineParser& parser);
};

} // namespace LumetraCli
