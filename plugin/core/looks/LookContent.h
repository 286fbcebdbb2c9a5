// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/PresetController.h"
#include "storage/ContentFolder.h"

#include <string>

namespace LumetraPlugin {

/// Tells whether two presets do the same to a photo and have the same controls, whatever they are
/// called and whoever has made them.
class LookContent
{
public:
    /// Equal texts for presets that start with the same effects, intensity and sliders of their
    /// own. Ids, names, credits and marks do not count. `tables` is the folder of the user's store,
    /// which may be null: tables that stand there are not read.
    static std::string MakeKey(const PresetController& preset,
                               const LumetraHost::ContentFolderPtr& tables);
};

} // namespace LumetraPlugin
