// SPDX-License-Identifier: GPL-2.0-or-later
#include "drawer/stack/PackageStack.h"

#include <algorithm>
#include <utility>

namespace LumetraHost {

using Zorvik::Quindle::EffectsSettings;

std::size_t PackageStack::Apply(const EffectsSettings& settings, const std::string& origin)
{
    auto applied = std::make_shared<EffectsSettings>(settings);
    auto& header = applied->Package();
    const auto replaced = FindReplaced(settings);
    if (header.GetIndex() == NoIndex)
        header.SetIndex(replaced ? Get(*replaced).Package().GetIndex() : m_nextIndex);
    ReserveIndex(header.GetIndex());
    const Package package{{std::move(applied), origin, true}, ++m_applications};
    if (replaced) {
        m_packages[*replaced] = package;
        return *replaced;
    }
    m_packages.push_back(package);
    return m_packages.size() - 1;
}

void PackageStack::Remove(std::size_t position)
{
    m_packages.erase(m_packages.begin() + static_cast<std::ptrdiff_t>(position));
}

std::vector<StackedPackage> PackageStack::TakeAll()
{
    std::vector<StackedPackage> taken;
    for (Package& package : m_packages)
        taken.push_back(std::move(package.content));
    m_packages.clear();
    return taken;
}

bool PackageStack::Arrange(const std::vector<std::string>& names)
{
    const auto isBelow = [&names](const Package& first, const Package& second) {
        const auto find = [&names](const Package& package) {
            return std::find(names.begin(), names.end(),
                             package.content.settings->Package().GetPackageName());
        };
        return find(first) < find(second);
    };
    if (std::is_sorted(m_packages.begin(), m_packages.end(), isBelow))
        return false;
    std::stable_sort(m_packages.begin(), m_packages.end(), isBelow);
    return true;
}

const EffectsSettings& PackageStack::Get(std::size_t position) const
{
    return *m_packages[position].content.settings;
}

const StackedPackage& PackageStack::GetPackage(std::size_t position) const
{
    return m_packages[position].content;
}

const SharedSettings& PackageStack::GetShared(std::size_t position) const
{
    return m_packages[position].content.settings;
}

void PackageStack::SetOn(std::size_t position, bool isOn)
{
    m_packages[position].content.isOn = isOn;
}

void PackageStack::SetShared(std::size_t position, const SharedSettings& settings)
{
    m_packages[position].content.settings = settings;
    m_packages[position].content.isOn = true;
}

std::optional<std::size_t> PackageStack::FindIndex(unsigned index) const
{
    for (std::size_t i = 0; i < m_packages.size(); ++i)
        if (Get(i).Package().GetIndex() == index)
            return i;
    return std::nullopt;
}

std::optional<std::size_t> PackageStack::FindName(const std::string& name) const
{
    for (std::size_t i = m_packages.size(); i-- > 0;)
        if (Get(i).Package().GetPackageName() == name)
            return i;
    return std::nullopt;
}

std::optional<std::size_t> PackageStack::FindLastApplied() const
{
    const auto last = std::max_element(
        m_packages.begin(), m_packages.end(),
        [](const Package& a, const Package& b) { return a.appliedAs < b.appliedAs; });
    if (last == m_packages.end())
        return std::nullopt;
    return static_cast<std::size_t>(last - m_packages.begin());
}

std::optional<std::size_t> PackageStack::FindReplaced(const EffectsSettings& settings) const
{
    if (const auto position = FindIndex(settings.Package().GetIndex()))
        return position;
    return FindName(settings.Package().GetPackageName());
}

void PackageStack::ReserveIndex(unsigned index)
{
    if (index < m_nextIndex)
        return;
    m_nextIndex = index + 1;
    // The numbers are used up: the lowest one that is free is taken.
    if (m_nextIndex == NoIndex)
        m_nextIndex = 0;
    while (FindIndex(m_nextIndex) || m_nextIndex == index)
        ++m_nextIndex;
}

} // namespace LumetraHost
