// SPDX-License-Identifier: GPL-2.0-or-later
#include "session/LayerRecords.h"

#include <algorithm>

namespace LumetraEditor {
namespace {

using LumetraHost::EditLayer;
using LumetraHost::EditRecord;
using LumetraHost::EditState;
using LumetraHost::IsSamePackage;

/// Finds what the closed layer at `position` was in the earlier edit. Null for a layer that has
/// been closed since.
const EditLayer* FindClosed(const EditState& state, std::size_t position, const EditState& earlier)
{
    const std::size_t fromTop = state.layers.size() - position;
    if (position < earlier.CountCommitted())
        return &earlier.layers[position];
    if (fromTop <= earlier.CountAbove())
        return &earlier.layers[earlier.layers.size() - fromTop];
    return nullptr;
}

/// Finds the open layer of the same package in the earlier edit; null when there was none.
const EditLayer* FindOpen(const EditLayer& layer, const EditState& earlier)
{
    const auto found =
        std::find_if(earlier.layers.begin(), earlier.layers.end(), [&layer](const EditLayer& one) {
            return one.isOpen && one.module == layer.module &&
                   one.settings->Package().GetPackageName() ==
                       layer.settings->Package().GetPackageName();
        });
    return found == earlier.layers.end() ? nullptr : &*found;
}

/// Puts an open layer, or one that has just been closed, into words.
EditRecord MakeRecord(const EditLayer& layer, const EditState& state, const EditState& earlier,
                      const LayerRecords::IsInUse& isInUse)
{
    if (const EditLayer* const open = FindOpen(layer, earlier); open && !isInUse(layer.module))
        if (IsSamePackage(*open->settings, *layer.settings))
            return open->record;
    return (layer.isOpen ? state : earlier).MakeRecord(layer.module, *layer.settings);
}

void KeepPart(EditLayer& layer, const EditState& earlier)
{
    const auto part = earlier.panels.find(layer.module);
    if (part != earlier.panels.end() && FindOpen(layer, earlier))
        layer.part = part->second;
}

} // namespace

void LayerRecords::Describe(EditState& state, const EditState& earlier, const IsInUse& isInUse)
{
    for (std::size_t i = 0; i < state.layers.size(); ++i) {
        EditLayer& layer = state.layers[i];
        const EditLayer* const closed = layer.isOpen ? nullptr : FindClosed(state, i, earlier);
        layer.record = closed ? closed->record : MakeRecord(layer, state, earlier, isInUse);
        if (closed)
            layer.part = closed->part;
        else if (!layer.isOpen)
            KeepPart(layer, earlier);
    }
}

void LayerRecords::ForgetClosedParts(EditState& state, const EditState& earlier,
                                     const IsInUse& isInUse)
{
    const auto hasOpenLayer = [&state](const QString& module) {
        return std::any_of(
            state.layers.begin(), state.layers.end(),
            [&module](const EditLayer& layer) { return layer.isOpen && layer.module == module; });
    };
    for (const EditLayer& layer : earlier.layers)
        if (layer.isOpen && !isInUse(layer.module) && !hasOpenLayer(layer.module))
            state.panels.erase(layer.module);
}

} // namespace LumetraEditor
