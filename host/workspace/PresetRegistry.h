// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Lumetra/IWorkspaceController.h"

#include <string>
#include <utility>
#include <vector>

namespace LumetraHost {

/// Keeps which presets there are: pairs of preset id and store id.
class PresetRegistry : public Zorvik::Lumetra::IPresetRegistry
{
public:
    using Entry = std::pair<std::string, std::string>;

    const std::vector<Entry>& GetPresets() const { return m_presets; }
    /// Null when there is no preset of that id; else its store id, which may be empty. Good until
    /// the next registration.
    const std::string* FindStoreId(const std::string& presetId) const;

    void RegisterPresets(const std::vector<Entry>& idsAndStoreIds) override;

private:
    std::vector<Entry> m_presets;
};

} // namespace LumetraHost
