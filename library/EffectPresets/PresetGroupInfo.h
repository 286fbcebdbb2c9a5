// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace Zorvik::Lumetra::LumetraPresets {

/// What the model knows of a group of presets. A plain value.
struct PresetGroupInfo
{
    bool editable = false;  ///< the user may rename, change and remove its presets
    std::string name;       ///< UTF-8; favourites are stored under it
    std::string appStoreId; ///< empty: no store sells it
};

} // namespace Zorvik::Lumetra::LumetraPresets
