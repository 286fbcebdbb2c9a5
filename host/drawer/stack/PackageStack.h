// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "drawer/stack/PictureRecipe.h"

#include "Zorvik/Quindle/EffectsSettings.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace LumetraHost {

/// The open effect packages of a photo, bottom first, and the rules by which they replace each
/// other. Knows nothing of pixels; copies
/// share the settings. Positions are places in the stack; indexes are the packages'
/// own numbers, which count upwards and are not used twice unless somebody asks for it.
class PackageStack
{
public:
    static constexpr unsigned NoIndex = Zorvik::Quindle::EffectsSettingsPackage::NoIndex;

    /// Replaces the package of the settings' index; if that is not there, the topmost one of the
    /// same name, which takes this index (without an index it keeps its own); else puts one on top
    /// under this index (without: the next free one). Returns its position.
    std::size_t Apply(const Zorvik::Quindle::EffectsSettings& settings);
    void Remove(std::size_t position);
    /// Empties the stack and returns what it held.
    std::vector<SharedSettings> TakeAll();

    std::size_t GetCount() const { return m_packages.size(); }
    const Zorvik::Quindle::EffectsSettings& Get(std::size_t position) const;
    /// The same, never changed later: a change of the package puts others in their place.
    const SharedSettings& GetShared(std::size_t position) const;
    /// Other settings with the package's own name and index.
    void SetShared(std::size_t position, const SharedSettings& settings);

    std::optional<std::size_t> FindIndex(unsigned index) const;
    /// The topmost one of that name.
    std::optional<std::size_t> FindName(const std::string& name) const;
    /// The one applied last.
    std::optional<std::size_t> FindLastApplied() const;
    unsigned GetNextIndex() const { return m_nextIndex; }

private:
    struct Package
    {
        SharedSettings settings;
        std::size_t appliedAs; ///< the number of the application
    };

    std::optional<std::size_t> FindReplaced(const Zorvik::Quindle::EffectsSettings& settings) const;
    void ReserveIndex(unsigned index);

    std::vector<Package> m_packages;
    std::size_t m_applications = 0;
    unsigned m_nextIndex = 0;
};

} // namespace LumetraHost
