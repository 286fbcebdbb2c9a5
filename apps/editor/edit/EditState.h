// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "edit/PanelEdit.h"
#include "photo/metadata/EditRecord.h"

#include "Zorvik/Quindle/EffectsSettings.h"

#include <QString>

#include <map>
#include <vector>

namespace LumetraEditor {

/// The edit of a photo at one moment: all that undo, redo and the next start need.
struct EditState
{
    std::vector<Zorvik::Quindle::EffectsSettings> committed; ///< bottom first
    std::vector<LumetraHost::EditRecord> records; ///< of `committed`, for the user to read
    std::map<QString, PanelEdit> panels;          ///< by module; of missing ones too

    /// A package in words for the user: those of the panel that has drawn it, else the package's
    /// own name and amount.
    LumetraHost::EditRecord MakeRecord(const Zorvik::Quindle::EffectsSettings& package) const;
};

/// True when both were made by the same packages: names, blend and effects count, indexes do not.
bool HaveSamePackages(const std::vector<Zorvik::Quindle::EffectsSettings>& first,
                      const std::vector<Zorvik::Quindle::EffectsSettings>& second);
bool operator==(const EditState& first, const EditState& second);

} // namespace LumetraEditor
