// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "console/OptionTable.h"

#include <QCommandLineParser>

#include <memory>

namespace LumetraPlugin {
class PresetSession;
}

namespace LumetraCli {

class Console;

/// The options of all commands that work with presets, and the session that they describe.
class CatalogueOptions
{
public:
    static void Add(OptionTable& options);

    /// A session with the presets of the system's, the user's and the named catalogues, and with
    /// the user's own. Errors in them are reported. Null, after a report, when a named one cannot
    /// be used or there are no presets at all. Without a store when it cannot be read.
    static std::unique_ptr<LumetraPlugin::PresetSession> Load(const QCommandLineParser& parser,
                                                              Console& console);
};

} // namespace LumetraCli
