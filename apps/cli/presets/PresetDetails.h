// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Quindle/EffectRegistry.h"
#include "Zorvik/Quindle/EffectsSettings.h"
#include "engine/effects/EffectKind.h"
#include "engine/effects/lut3d/LookUpTable.h"
#include "presets/PresetRows.h"

#include <string>
#include <vector>

namespace LumetraCli {

/// Everything about one preset that a list of presets leaves out.
struct PresetDetails
{
    struct Parameter
    {
        Zorvik::Quindle::EffectParameter kind;
        double value = 0;
    };

    struct Table
    {
        LumetraHost::LookUpTable::Kind kind;
        int size = 0; ///< entries along each axis
    };

    struct Effect
    {
        std::string id;
        QString
            title; ///< in the user's language; the id of an effect that the engine does not know
        std::string plainTitle; ///< in English
        LumetraHost::EffectReach reach = LumetraHost::EffectReach::ColourOnly;
        std::vector<Parameter> parameters;
        std::vector<Table> tables;
        QString problem; ///< why the tables cannot be read
    };

    struct Variable
    {
        std::string effect;
        std::string parameter;
        double begin = 0;
        double end = 0;
    };

    struct Slider
    {
        Zorvik::Lumetra::LumetraPresets::SliderSetting setting;
        std::vector<Variable> variables; ///< what it moves
    };

    PresetRow row;
    std::string author;
    std::string licence;
    /// The farthest reach of its effects, as far as they change anything.
    LumetraHost::EffectReach reach = LumetraHost::EffectReach::ColourOnly;
    std::vector<Effect> effects; ///< in the order in which they are drawn
    std::vector<Slider> sliders;

    /// Collects them for a preset of a model. Reads the tables.
    static PresetDetails Read(const PresetRow& row);

    /// "colour", "place", "picture" or "neighbours".
    static const char* GetReachName(LumetraHost::EffectReach reach);
};

} // namespace LumetraCli
