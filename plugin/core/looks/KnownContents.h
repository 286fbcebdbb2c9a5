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
    /// The content of a preset; nothing for one whose tables are missing, which is like no other.
    using Key = std::optional<std::string>;

    /// Looks at the user's presets as they are now.
    explicit KnownContents(PresetCollection& collection);

    Key MakeKey(const PresetController& preset) const;
    /// The name of the preset with this content; nothing when there is none.
    std::optional<QString> Find(const Key& key) const;
    /// Notes that a preset of that name has the content, unless another one has it.
    void Add(const Key& key, const QString& name);

private:
    LumetraHost::ContentFolderPtr m_tables;
    std::map<std::string, QString> m_names;
};

} // namespace LumetraPlugin
