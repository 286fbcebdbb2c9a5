// SPDX-License-Identifier: GPL-2.0-or-later
#include "workspace/PresetRegistry.h"

#include <algorithm>

namespace LumetraHost {

const std::string* PresetRegistry::FindStoreId(const std::string& presetId) const
{
    const auto found =
        std::find_if(m_presets.begin(), m_presets.end(),
                     [&presetId](const Entry& entry) { return entry.first == presetId; });
    return found == m_presets.end() ? nullptr : &found->second;
}

void PresetRegistry::RegisterPresets(const std::vector<Entry>& idsAndStoreIds)
{
    m_presets = idsAndStoreIds;
}

} // namespace LumetraHost
