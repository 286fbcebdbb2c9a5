// SPDX-License-Identifier: MIT
#pragma once

#include "EffectPresets/EffectPresetModel.h"

namespace Zorvik::Lumetra::LumetraPresets {

/// Where a persistent index stands, told by rows, so that it can be found again after the
/// sequences have moved in memory. Private to the model.
struct EffectPresetModel::PersistentPlace
{
    QModelIndex index;
    int groupRow = -1; ///< -1: the index is a group itself
};

} // namespace Zorvik::Lumetra::LumetraPresets
