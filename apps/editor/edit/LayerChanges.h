// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "edits/EditState.h"

#include <cstddef>

namespace LumetraEditor {

/// Changes of the list of layers of one edit. Positions count from the bottom; one without a layer
/// changes nothing. All of them give edits that EditStateFormat can store.
///
/// A layer that is closed keeps its module's part of the edit, and a layer that is opened gives the
/// module that part back. Open layers lie together: one that would be parted from the others is
/// closed.
namespace LayerChanges {

/// Closes all open layers.
LumetraHost::EditState CloseAll(const LumetraHost::EditState& edit);
/// Opens a layer, which is on then. Of the open layers those stay open that still lie together with
/// it and are of other modules.
LumetraHost::EditState Open(const LumetraHost::EditState& edit, std::size_t position);
/// Takes a layer away.
LumetraHost::EditState Remove(const LumetraHost::EditState& edit, std::size_t position);
/// Moves a layer to the position `to` in the list that results.
LumetraHost::EditState Move(const LumetraHost::EditState& edit, std::size_t from, std::size_t to);

} // namespace LayerChanges
} // namespace LumetraEditor
