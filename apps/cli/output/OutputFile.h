// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "console/OptionTable.h"

#include <QCommandLineParser>

namespace LumetraCli {

/// The one file that a command writes, for commands that do not write a file per photo.
class OutputFile
{
public:
    /// Adds --output, described by `help`, and --overwrite.
    static void AddOptions(OptionTable& options, const QString& help);

    /// The file name as it was given; empty without --output.
    static QString GetName(const QCommandLineParser& parser);
    /// The file name, checked. UsageError when it cannot be written, and when there is such a file
    /// and no --overwrite.
    static QString Read(const QCommandLineParser& parser);
    /// The file name, checked in the same way. UsageError also unless it ends in `suffix`, such as
    /// "png", which the message calls `kind`.
    static QString Read(const QCommandLineParser& parser, const QString& suffix,
                        const QString& kind);
};

} // namespace LumetraCli
