// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "edits/EditState.h"
#include "exporting/batch/PhotoLook.h"

#include <vector>

namespace LumetraHost {

/// The layers of an edit that are on, as exports draw and record them.
namespace DrawnEdit {

/// The records of the layers for an exported photo, with their looks; a layer without a name and
/// without effects has none.
std::vector<EditRecord> MakeRecords(const std::vector<EditLayer>& layers);
/// The packages and the records.
LookLayers Make(const std::vector<EditLayer>& layers);

} // namespace DrawnEdit
} // namespace LumetraHost
