// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/PresetController.h"
#include "storage/ContentFolder.h"

#include <QString>

#include <map>
#include <optional>
#include <string>

namespace LumetraPlugin {

class PresetCollection;

/// Knows what the user's presets do, to find a look that the user has already.
class KnownContents
{
public:
    /// Looks at the user's presets as they are now.
    explicit KnownContents(PresetCollection& collection);

    /// The name of the preset with this content; nothing, and the preset is known from now on, when
    /// there is none. A preset whose tables are missing is like no other.
    std::optional<QString> TakeOrFind(const PresetController& preset);

private:
    LumetraHost::ContentFolderPtr m_tables;
    std::map<std::string, QString> m_names;
};

} // namespace LumetraPlugin
