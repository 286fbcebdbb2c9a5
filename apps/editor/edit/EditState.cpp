// SPDX-License-Identifier: GPL-2.0-or-later
#include "edit/EditState.h"

#include "edit/EditStateFormat.h"

#include <algorithm>

namespace LumetraEditor {

bool EditState::IsEmpty() const
{
    return committed.empty() && std::all_of(panels.begin(), panels.end(), [](const auto& panel) {
               return panel.second.isEmpty();
           });
}

bool HaveSamePackages(const std::vector<Zorvik::Quindle::EffectsSettings>& first,
                      const std::vector<Zorvik::Quindle::EffectsSettings>& second)
{
    return first.size() == second.size() &&
           EditStateFormat::PackagesText(first) == EditStateFormat::PackagesText(second);
}

bool operator==(const EditState& first, const EditState& second)
{
    return first.panels == second.panels && HaveSamePackages(first.committed, second.committed);
}

} // namespace LumetraEditor
