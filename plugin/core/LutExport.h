// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Quindle/EffectsSettings.h"
#include "lut/LutFormat.h"

#include <QString>

#include <optional>
#include <string>
#include <vector>

namespace LumetraPlugin {

/// Writes looks as look-up tables for other programs. Effects that look at the place, at
/// neighbouring pixels or at the whole picture fit into none; the user decides whether they are
/// left out.
class LutExport
{
public:
    /// The format that the name of a file announces; nothing for names of files that are not
    /// written.
    static std::optional<LumetraHost::LutFormat> FindFormat(const QString& path);
    /// The points along each axis where the user names no number: 33, and 64 in a HaldCLUT, as most
    /// programs have it.
    static int GetDefaultSize(LumetraHost::LutFormat format);

    /// A look and the file that is made of it.
    struct Request
    {
        Zorvik::Quindle::EffectsSettings look; ///< may have effects that do not fit
        LumetraHost::LutFormat format = LumetraHost::LutFormat::Cube;
        int size = 33; ///< points along each axis, see LookExport and LutWriter
        QString title; ///< stands in the file
        QString path;
        bool isColoursOnly = false; ///< leaves out the effects that do not fit
    };

    /// Writes the file. Returns the ids of the effects that were left out, each once. Exception,
    /// and the file as it was, when effects do not fit and are not to be left out, when nothing
    /// remains, for a size out of range, and when the file cannot be written.
    static std::vector<std::string> Write(const Request& request);
};

} // namespace LumetraPlugin
