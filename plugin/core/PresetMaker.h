// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Quindle/IEffectSettings.h"
#include "core/PresetModel.h"

#include <optional>
#include <string>
#include <vector>

namespace LumetraPlugin {

class PresetControllerFactory;

/// Makes presets of the user out of effects.
class PresetMaker
{
public:
    /// A slider of a preset: its positions, both included, and what it moves.
    struct Slider
    {
        QString title;
        int begin = 0;
        int end = 100;
        std::vector<Zorvik::Lumetra::LumetraPresets::SliderSetting::SliderVariable> variables;
    };
    struct Content
    {
        QString name;
        Zorvik::Quindle::ConstEffectList effects; ///< none of them null
        /// The per cent of the full effect at which a blending intensity starts.
        std::optional<int> blend;
        /// An intensity that moves effects, for a preset without `blend`. With neither the preset
        /// has no intensity.
        std::optional<Slider> intensity = {};
        /// The extra sliders; without a value those of the catalogue.
        std::optional<std::vector<Slider>> sliders = {};
    };

    /// A preset with an id of its own, which no model has yet. The effects are copied. Throws
    /// std::invalid_argument for a slider that moves an unknown parameter, and the platform's
    /// Exception for an intensity that moves an effect which is not there.
    static PresetModel::PresetPtr Make(const Content& content, PresetControllerFactory& factory);
    /// Makes a preset without sliders of its own, which starts at `intensity`, the per cent
    /// of its full effect; without a value it has no intensity.
    static PresetModel::PresetPtr Make(const QString& name,
                                       const Zorvik::Quindle::ConstEffectList& effects,
                                       std::optional<int> intensity,
                                       PresetControllerFactory& factory);
};

} // namespace LumetraPlugin
