// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "catalogue/CatalogueReport.h"

#include <set>
#include <string>

namespace LumetraHost {
class JsonDocument;
} // namespace LumetraHost

namespace LumetraPlugin {

/// Checks files of the user's own presets and favourite marks, as catalogues are checked: each
/// mistake with its place. It changes nothing and repairs nothing. The effects must be registered
/// before.
class UserStoreChecker
{
public:
    /// True when the file's "format" is that of a store, and for the first version, which wrote no
    /// format, when it has the members of one. UserPresetStore opens the same files, and also an
    /// object without members, which nobody would lose.
    static bool IsStore(const LumetraHost::JsonDocument& document);

    /// `controllerKinds`: the kinds of preset controller that can be made.
    static void Check(const LumetraHost::JsonDocument& document,
                      const std::set<std::string>& controllerKinds,
                      LumetraHost::CatalogueReports& reports);
};

} // namespace LumetraPlugin
