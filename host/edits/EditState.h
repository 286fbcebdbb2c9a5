// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "drawer/stack/PictureRecipe.h"
#include "edits/PanelEdit.h"
#include "photo/metadata/EditRecord.h"

#include "Zorvik/Quindle/EffectsSettings.h"

#include <QString>

#include <map>
#include <optional>
#include <vector>

namespace LumetraHost {

/// One package of an edit, in its place.
struct EditLayer
{
    QString module;          ///< the id of the module that has drawn it; empty: unknown
    SharedSettings settings; ///< never null
    EditRecord record;       ///< the package in words for the user
    bool isOn = true;        ///< false: the layer keeps its place and is not drawn
    bool isOpen = false;     ///< its module can still change it
    /// The part of its module from the time when the layer was open, from which the module can open
    /// it again. Without a value while the layer is open, and where nobody has kept the part.
    std::optional<PanelEdit> part = std::nullopt;
};

/// The edit of a photo at one moment: all that undo, redo and the next start need.
struct EditState
{
    /// The layers, bottom first. Open ones lie together; while a lower layer is open again, closed
    /// ones lie above them, too.
    std::vector<EditLayer> layers;
    std::map<QString, PanelEdit> panels; ///< by module; of missing ones too

    /// A package in words for the user: those of the panel that has drawn it, else the package's
    /// own name and amount. An empty `module` asks all panels.
    EditRecord MakeRecord(const QString& module,
                          const Zorvik::Quindle::EffectsSettings& package) const;
    /// How many layers, from the bottom, are committed: all of them where none is open.
    std::size_t CountCommitted() const;
    /// How many layers lie above the open ones; 0 where none is open.
    std::size_t CountAbove() const;
};

/// True when both put the same on a photo: names, blend and effects count, indexes do not.
bool IsSamePackage(const Zorvik::Quindle::EffectsSettings& first,
                   const Zorvik::Quindle::EffectsSettings& second);
/// True when both layers are of the same module and package, and in the same state. Records and
/// kept parts do not count.
bool operator==(const EditLayer& first, const EditLayer& second);
bool operator==(const EditState& first, const EditState& second);

} // namespace LumetraHost
