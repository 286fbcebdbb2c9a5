// SPDX-License-Identifier: GPL-2.0-or-later
#include "edits/DrawnEdit.h"

#include "exporting/LookRecord.h"

namespace LumetraHost {

std::vector<EditRecord> DrawnEdit::MakeRecords(const std::vector<EditLayer>& layers)
{
    std::vector<EditRecord> records;
    for (const EditLayer& layer : layers) {
        const bool hasEffects = !layer.settings->EffectsConst().empty();
        if (!layer.isOn || (layer.record.preset.empty() && !hasEffects))
            continue;
        records.push_back(layer.record);
        if (records.back().preset.empty()) // a record is told by its name
            records.back().preset = layer.module.isEmpty() ? "Layer" : layer.module.toStdString();
        LookRecord::AddLook(records.back(), *layer.settings);
    }
    return records;
}

LookLayers DrawnEdit::Make(const std::vector<EditLayer>& layers)
{
    LookLayers drawn;
    for (const EditLayer& layer : layers)
        if (layer.isOn)
            drawn.packages.push_back(*layer.settings);
    drawn.records = MakeRecords(layers);
    return drawn;
}

} // namespace LumetraHost
