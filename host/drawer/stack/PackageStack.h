// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "drawer/stack/PictureRecipe.h"

#include "Zorvik/Quindle/EffectsSettings.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace LumetraHost {

/// A package in its place in a drawer, open or committed.
struct StackedPackage
{
    SharedSettings settings; ///< never null
    std::string origin;      ///< who has applied it last; empty: unknown
    bool isOn = true;        ///< false: it keeps its place, and no picture shows it
};

/// The open effect packages of a photo, bottom first, and the rules by which they replace each
/// other. Knows nothing of pixels; copies share the settings. A position is a place in the stack;
/// an index is a package's own number, which counts upwards and is not used twice unless somebody
/// asks for it.
class PackageStack
{
public:
    static constexpr unsigned NoIndex = Zorvik::Quindle::EffectsSettingsPackage::NoIndex;

    /// Replaces the package with the settings' index. Without one, replaces the topmost package of
    /// the same name, which takes this index; settings without an index leave it its own. Without
    /// either, puts a package on top under this index, or the next free one. The package is on,
    /// even where it replaces one that was off. Returns its position.
    std::size_t Apply(const Zorvik::Quindle::EffectsSettings& settings,
                      const std::string& origin = {});
    void Remove(std::size_t position);
    /// Empties the stack and returns what it held.
    std::vector<StackedPackage> TakeAll();
    /// Puts the packages of these names into this order, below all others, which keep theirs.
    /// Returns false when they were in it already.
    bool Arrange(const std::vector<std::string>& names);

    std::size_t GetCount() const { return m_packages.size(); }
    const Zorvik::Quindle::EffectsSettings& Get(std::size_t position) const;
    const StackedPackage& GetPackage(std::size_t position) const;
    /// Settings that never change: a change of the package puts other settings in their place.
    const SharedSettings& GetShared(std::size_t position) const;
    void SetOn(std::size_t position, bool isOn);
    /// Replaces the settings and sets the package on; the new ones have the package's own name and
    /// index.
    void SetShared(std::size_t position, const SharedSettings& settings);

    std::optional<std::size_t> FindIndex(unsigned index) const;
    /// The position of the topmost package of that name.
    std::optional<std::size_t> FindName(const std::string& name) const;
    /// The position of the package that was applied last.
    std::optional<std::size_t> FindLastApplied() const;
    unsigned GetNextIndex() const { return m_nextIndex; }

private:
    struct Package
    {
        StackedPackage content;
        std::size_t appliedAs; ///< the number of the application
    };

    std::optional<std::size_t> FindReplaced(const Zorvik::Quindle::EffectsSettings& settings) const;
    void ReserveIndex(unsigned index);

    std::vector<Package> m_packages;
    std::size_t m_applications = 0;
    unsigned m_nextIndex = 0;
};

} // namespace LumetraHost
