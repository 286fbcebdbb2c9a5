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
    /// True when the file says by its "format" that it is one, or has no format and the members of
    /// one: the first version wrote none. UserPresetStore opens the same files, and beside them
    /// only an object without members, which nobody would lose.
    static bool IsStore(const LumetraHost::JsonDocument& document);

    /// `controllerKinds`: the kinds of preset controller that can be made.
    static void Check(const LumetraHost::JsonDocument& document,
                      const std::set<std::string>& controllerKinds,
                      LumetraHost::CatalogueReports& reports);
};

} // namespace LumetraPlugin
