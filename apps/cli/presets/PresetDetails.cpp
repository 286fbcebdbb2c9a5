// SPDX-License-Identifier: GPL-2.0-or-later
#include "presets/PresetDetails.h"

#include "Zorvik/Exception.h"
#include "catalogue/CatalogueKeys.h"
#include "core/PresetModel.h"
#include "engine/effects/EffectKinds.h"
#include "engine/effects/lut3d/Lut3dSettings.h"
#include "lut/LookExport.h"
#include "storage/JsonDocument.h"

#include <QCoreApplication>

#include <algorithm>

namespace LumetraCli {
namespace {

using LumetraHost::CatalogueKeys;
using LumetraHost::EffectKinds;
using LumetraHost::EffectReach;
using LumetraHost::Lut3dSettings;
using Zorvik::Lumetra::LumetraPresets::SliderSetting;
using Zorvik::Quindle::EffectParameter;
using Zorvik::Quindle::EffectsSettings;
using Zorvik::Quindle::IEffectSettings;

void ReadTables(const Lut3dSettings& settings, PresetDetails::Effect& effect)
{
    try {
        for (const auto& table : {settings.GetCurve(), settings.GetCube()})
            if (table)
                effect.tables.push_back({table->kind, table->size});
    } catch (const Zorvik::Exception& error) {
        effect.problem = QString::fromUtf8(error.what());
    }
}

PresetDetails::Effect ReadEffect(const IEffectSettings& settings)
{
    PresetDetails::Effect effect;
    effect.id = settings.GetEffectID();
    const auto* const kind = EffectKinds::Find(effect.id);
    effect.plainTitle = kind ? kind->title : effect.id;
    effect.title = QCoreApplication::translate("Effects", effect.plainTitle.c_str());
    if (kind) {
        effect.reach = kind->reach;
        for (const EffectParameter& parameter : kind->descriptor.parameters)
            if (settings.HasParameter(parameter.name))
                effect.parameters.push_back({parameter, settings.GetParameter(parameter.name)});
    }
    if (const auto* const tables = dynamic_cast<const Lut3dSettings*>(&settings))
        ReadTables(*tables, effect);
    return effect;
}

/// The slider tells what it moves in its stored form alone.
std::vector<PresetDetails::Variable> ReadVariables(const SliderSetting& slider)
{
    const LumetraHost::JsonDocument document("slider");
    const auto root = document.GetRoot();
    slider.Serialize(root);
    std::vector<PresetDetails::Variable> variables;
    const auto list = root->GetCollection(CatalogueKeys::Variables);
    for (std::size_t i = 0; list && i < list->GetCount(); ++i) {
        const auto node = list->GetElement(i);
        variables.push_back(
            {node->Get(CatalogueKeys::EffectId, ""), node->Get(CatalogueKeys::Setting, ""),
             node->Get(CatalogueKeys::Begin, 0.0), node->Get(CatalogueKeys::End, 0.0)});
    }
    return variables;
}

/// EffectReach counts upwards.
EffectReach FindReach(const EffectsSettings& look)
{
    EffectReach farthest = EffectReach::ColourOnly;
    for (const std::string& id : LumetraHost::LookExport::FindUnfitEffects(look))
        if (const auto* const kind = EffectKinds::Find(id))
            farthest = std::max(farthest, kind->reach);
    return farthest;
}

} // namespace

PresetDetails PresetDetails::Read(const PresetRow& row)
{
    PresetDetails details;
    details.row = row;
    const auto* const model = dynamic_cast<const LumetraPlugin::PresetModel*>(row.index.model());
    const auto preset = model ? model->GetPreset(row.index) : nullptr;
    if (!preset)
        return details;
    const auto credits = preset->MakeCredits();
    details.author = credits.author;
    details.licence = credits.licence;
    const EffectsSettings look = preset->MakeSettings();
    for (const auto& effect : look.EffectsConst())
        details.effects.push_back(ReadEffect(*effect));
    if (row.problem.isEmpty())
        details.reach = FindReach(look);
    for (const SliderSetting& slider : row.sliders)
        details.sliders.push_back({slider, ReadVariables(slider)});
    return details;
}

const char* PresetDetails::GetReachName(EffectReach reach)
{
    switch (reach) {
    case EffectReach::Positional:
        return "place";
    case EffectReach::WholePicture:
        return "picture";
    case EffectReach::Spatial:
        return "neighbours";
    default:
        return "colour";
    }
}

} // namespace LumetraCli
