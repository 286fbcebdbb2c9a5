// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace Zorvik::Lumetra::LumetraPresets {

/// Describes a group of presets. It is a plain value.
struct PresetGroupInfo
{
    bool editable = false;  ///< True when the user may rename, change and remove its presets.
    std::string name;       ///< The name in UTF-8, under which favourites are stored.
    std::string appStoreId; ///< The store's id of the content; empty when no store sells it.
};

} // namespace Zorvik::Lumetra::LumetraPresets
