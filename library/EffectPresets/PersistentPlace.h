// SPDX-License-Identifier: MIT
#pragma once

#include "EffectPresets/EffectPresetModel.h"

namespace Zorvik::Lumetra::LumetraPresets {

/// Tells by rows where a persistent index stands, so that the place can be found again after the
/// lists have moved in memory. It is private to the model.
struct EffectPresetModel::PersistentPlace
{
    QModelIndex index;
    int groupRow = -1; ///< The row of the preset's group; -1 when the index is a group itself.
};

} // namespace Zorvik::Lumetra::LumetraPresets
