// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Quindle/IEffectSettings.h"
#include "core/PresetModel.h"

#include <optional>

namespace LumetraPlugin {

class PresetControllerFactory;

/// Makes presets of the user out of effects.
class PresetMaker
{
public:
    /// A preset with an id of its own, which no model has yet. It starts at `intensity`, the per
    /// cent of its full effect; without a value it has no intensity. The effects are copied, and
    /// must not be null.
    static PresetModel::PresetPtr Make(const QString& name,
                                       const Zorvik::Quindle::ConstEffectList& effects,
                                       std::optional<int> intensity,
                                       PresetControllerFactory& factory);
};

} // namespace LumetraPlugin
