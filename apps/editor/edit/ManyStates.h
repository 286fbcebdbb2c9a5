// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "edits/EditState.h"

#include <QString>

#include <map>
#include <memory>
#include <mutex>
#include <optional>

namespace LumetraEditor {

/// An edit that is shared, as many photos may have the same one; null: the photo has no edit.
using SharedEdit = std::shared_ptr<const LumetraHost::EditState>;

/// The edits of photos before and after a step that has changed them, by the photos' paths. Photos
/// that the step has left as they were are not among them. Usable from any thread.
class ManyStates
{
public:
    struct Change
    {
        SharedEdit before;
        SharedEdit after;
    };

    void Set(const QString& photo, const Change& change);
    void Remove(const QString& photo);
    std::optional<Change> Find(const QString& photo) const;
    bool IsEmpty() const;

private:
    mutable std::mutex m_mutex; ///< guards m_changes
    std::map<QString, Change> m_changes;
};

} // namespace LumetraEditor
