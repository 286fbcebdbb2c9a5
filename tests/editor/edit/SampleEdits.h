// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "edits/EditState.h"
#include "support/StoredForm.h"

#include "Zorvik/Quindle/EffectSettingsImpl.h"

#include <QString>

#include <memory>
#include <string>
#include <vector>

namespace LumetraTest {

/// A layer that brightens by `stops`. Layers of a module have the module's package.
inline LumetraHost::EditLayer MakeLayer(const char* module, const char* look, double stops,
                                        bool isOpen)
{
    using Zorvik::Quindle::EffectsSettings;
    const auto effect = Zorvik::Quindle::EffectSettingsImpl::Create("exposure");
    effect->SetParameter("stops", stops);
    auto settings = std::make_shared<EffectsSettings>(EffectsSettings::PhotoAlone);
    settings->Package().SetPackageName(module);
    settings->Package().SetPresetName(look);
    settings->Effects().push_back(effect);
    LumetraHost::EditLayer layer;
    layer.module = QString::fromLatin1(module);
    layer.settings = settings;
    layer.record = {look, 100};
    layer.isOpen = isOpen;
    return layer;
}

inline LumetraHost::EditLayer Open(const char* module, const char* look, double stops = 1)
{
    return MakeLayer(module, look, stops, true);
}

inline LumetraHost::EditLayer Committed(const char* module, const char* look, double stops = 1)
{
    return MakeLayer(module, look, stops, false);
}

/// An edit with these layers, bottom first, in which the modules of open ones have parts with the
/// names of their looks.
inline LumetraHost::EditState MakeEdit(const std::vector<LumetraHost::EditLayer>& layers)
{
    LumetraHost::EditState edit;
    edit.layers = layers;
    for (const auto& layer : layers)
        if (layer.isOpen)
            edit.panels[layer.module] = LumetraHost::PanelEdit(
                StoredNode{{"name", layer.settings->Package().GetPresetName()}}.ToProperty());
    return edit;
}

/// The layers, bottom first, as "MODULE LOOK", with an asterisk behind open ones.
inline std::vector<std::string> NameLayers(const LumetraHost::EditState& edit)
{
    std::vector<std::string> names;
    for (const auto& layer : edit.layers)
        names.push_back(layer.module.toStdString() + " " +
                        layer.settings->Package().GetPresetName() + (layer.isOpen ? "*" : ""));
    return names;
}

/// The modules that have a part with entries.
inline std::vector<std::string> NameParts(const LumetraHost::EditState& edit)
{
    std::vector<std::string> names;
    for (const auto& [module, part] : edit.panels)
        if (!(part == LumetraHost::PanelEdit()))
            names.push_back(module.toStdString());
    return names;
}

} // namespace LumetraTest
