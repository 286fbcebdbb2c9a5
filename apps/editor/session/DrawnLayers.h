// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "edits/EditState.h"

#include <functional>
#include <vector>

namespace LumetraHost {
class Drawer;
}

namespace LumetraEditor {

/// The layers of an edit as a drawer has them. Modules draw their open layers themselves when their
/// part of the edit is restored; the operations here do what is around that.
namespace DrawnLayers {

/// The drawer's packages as layers, without their records.
std::vector<LumetraHost::EditLayer> Read(const LumetraHost::Drawer& drawer);

/// Leaves the closed layers of the edit on the photo, below and above the place of the open ones,
/// and no open ones. Nothing is rendered again where the drawer has the same ones already.
void RestoreClosed(LumetraHost::Drawer& drawer, const std::vector<LumetraHost::EditLayer>& layers);
/// Follows the modules in use, which have drawn their open layers: draws those of all other
/// modules, puts the open ones into the order of the edit, and sets layers on and off.
void RestoreOpen(LumetraHost::Drawer& drawer, const std::vector<LumetraHost::EditLayer>& layers,
                 const std::function<bool(const QString& module)>& isInUse);
/// Takes the open layers of a module off.
void RemoveOpen(LumetraHost::Drawer& drawer, const QString& module);

} // namespace DrawnLayers
} // namespace LumetraEditor
