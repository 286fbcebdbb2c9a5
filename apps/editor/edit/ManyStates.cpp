// SPDX-License-Identifier: GPL-2.0-or-later
#include "edit/ManyStates.h"

namespace LumetraEditor {

void ManyStates::Set(const QString& photo, const Change& change)
{
    const std::lock_guard lock(m_mutex);
    m_changes[photo] = change;
}

void ManyStates::Remove(const QString& photo)
{
    const std::lock_guard lock(m_mutex);
    m_changes.erase(photo);
}

std::optional<ManyStates::Change> ManyStates::Find(const QString& photo) const
{
    const std::lock_guard lock(m_mutex);
    const auto found = m_changes.find(photo);
    return found == m_changes.end() ? std::nullopt : std::optional(found->second);
}

bool ManyStates::IsEmpty() const
{
    const std::lock_guard lock(m_mutex);
    return m_changes.empty();
}

} // namespace LumetraEditor
