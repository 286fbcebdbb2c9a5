// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "EffectPresets/PresetKeys.h"
#include "Zorvik/Brassel/SettingsKeys.h"
#include "userdata/UserDataForm.h"

namespace LumetraPlugin {

/// The stored form of the user's presets and favourite marks. All code that reads or writes a
/// store without the model takes its keys from here; the model's own keys are the same ones.
///
/// The root holds a node Presets with a list Items, and a list Favourites of nodes with Group and
/// ID. Files of the first version may have Items at the root, in place of the node.
struct UserStoreFormat
{
    // Keys at the root.
    static constexpr const auto& Presets = Zorvik::Lumetra::LumetraPresets::PresetKeys::UserPresets;
    static constexpr const auto& Favourites =
        Zorvik::Lumetra::LumetraPresets::PresetKeys::Favourites;
    static constexpr const auto& Items = Zorvik::Brassel::Settings::ConfigData::ITEMS;

    // Keys in a preset and in a mark.
    static constexpr const auto& ID = Zorvik::Lumetra::LumetraPresets::PresetKeys::ID;
    static constexpr const auto& Name = Zorvik::Brassel::Settings::EffectInfo::KEY_NAME;
    static constexpr const auto& Group = Zorvik::Brassel::Settings::EffectInfo::KEY_GROUP;

    /// Describes how the file of a store is told from others, and which versions there are.
    static const LumetraHost::UserDataForm& GetForm();
};

} // namespace LumetraPlugin
