// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "edits/EditState.h"

#include <functional>

namespace LumetraEditor {

/// Completes an edit that was read from the drawer and the panels by what only the edit after the
/// last step knows: the words for each layer, and the parts that closed layers keep.
namespace LayerRecords {

/// True when the module has a panel that can change its open layers.
using IsInUse = std::function<bool(const QString& module)>;

/// Gives the layers of `state` their records and kept parts. `earlier` is the edit after the last
/// step. A layer that has been closed since then keeps the part that its module had.
void Describe(LumetraHost::EditState& state, const LumetraHost::EditState& earlier,
              const IsInUse& isInUse);
/// Removes the parts of modules that are not in use and whose open layers have all become part of
/// the photo since the last step: such a module would draw them once more when it comes back.
void ForgetClosedParts(LumetraHost::EditState& state, const LumetraHost::EditState& earlier,
                       const IsInUse& isInUse);

} // namespace LayerRecords
} // namespace LumetraEditor
