// SPDX-License-Identifier: GPL-2.0-or-later
#include "drawer/view/TickCosts.h"

#include "drawer/stack/SameEffects.h"

#include <algorithm>

namespace LumetraHost {

void TickCosts::Begin(const std::vector<Layer>& layers, double pixels)
{
    const Change change = Find(m_layers, layers);
    const bool isOther = change.layer != m_change.layer || change.effect != m_change.effect ||
                         change.isBlend != m_change.isBlend || layers.size() != m_layers.size();
    m_isDrag = !isOther && pixels == m_pixels;
    if (!m_isDrag) {
        m_isWarm = false;
        m_isRefused = false;
        m_exact.reset();
        m_table.reset();
    }
    m_layers = layers;
    m_pixels = pixels;
    m_change = change;
}

void TickCosts::AddExact(double time)
{
    if (m_isWarm)
        m_exact = std::min(time, m_exact.value_or(time));
    m_isWarm = true;
}

void TickCosts::AddTable(double time)
{
    m_table = std::min(time, m_table.value_or(time));
}

bool TickCosts::IsTableQuicker(double assumed, double conversion) const
{
    return !m_isRefused && m_exact &&
           m_table.value_or(assumed) < m_largestShare * (*m_exact + conversion);
}

TickCosts::Change TickCosts::Find(const std::vector<Layer>& before, const std::vector<Layer>& after)
{
    const auto layers = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
    Change change;
    change.layer = static_cast<std::size_t>(layers.second - after.begin());
    if (layers.first == before.end() || layers.second == after.end())
        return change;
    change.isBlend = layers.second->paintedBlend.has_value();
    const auto& first = layers.first->settings->Effects();
    const auto& second = layers.second->settings->Effects();
    if (first.size() != second.size())
        return change;
    const auto effects =
        std::mismatch(first.begin(), first.end(), second.begin(), second.end(), AreSameEffects);
    change.effect = static_cast<std::size_t>(effects.second - second.begin());
    return change;
}

} // namespace LumetraHost
