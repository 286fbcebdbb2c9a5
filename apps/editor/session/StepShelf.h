// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "session/EditStep.h"

#include <QString>

#include <list>
#include <optional>
#include <vector>

namespace LumetraEditor {

/// Keeps the steps of photos that are not shown, until the program ends, so that they can be undone
/// when their photo is shown again. Of very many steps those go first whose photo was left first.
class StepShelf
{
public:
    /// The most steps that are kept, of all photos together.
    static constexpr std::size_t MostSteps = 500;

    struct Steps
    {
        QString photo;
        std::vector<OwnStep> steps;
        LumetraHost::EditState left; ///< the photo's edit when it was left
    };

    /// Replaces what was kept for the photo.
    void Put(Steps steps);
    /// Returns what is kept for the photo, and keeps it no longer.
    std::optional<Steps> Take(const QString& photo);

private:
    std::list<Steps> m_photos; ///< in the order in which they were left
};

} // namespace LumetraEditor
