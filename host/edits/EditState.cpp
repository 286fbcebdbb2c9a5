// SPDX-License-Identifier: GPL-2.0-or-later
#include "edits/EditState.h"

#include "edits/EditStateFormat.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectsSettings;

/// How much of the full effect a blend amount leaves.
int PercentOf(int blendAmount)
{
    constexpr double Range = EffectsSettings::NoEffect - EffectsSettings::FullEffect;
    return static_cast<int>(std::lround(100 * (EffectsSettings::NoEffect - blendAmount) / Range));
}

std::string FindText(const JsonObject& edit, const char* key, const std::string& fallback)
{
    const JsonValue* const value = edit.Find(key);
    const auto* const text = value ? value->As<std::string>() : nullptr;
    return text ? *text : fallback;
}

int FindWhole(const JsonObject& edit, const char* key, int fallback)
{
    const JsonValue* const value = edit.Find(key);
    const auto* const number = value ? value->As<JsonNumber>() : nullptr;
    const bool isWhole = number && number->value == std::trunc(number->value) &&
                         std::abs(number->value) <= std::numeric_limits<int>::max();
    return isWhole ? static_cast<int>(number->value) : fallback;
}

} // namespace

EditRecord EditState::MakeRecord(const QString& module, const EffectsSettings& package) const
{
    const std::string& preset = package.Package().GetPresetName();
    const int share = PercentOf(package.GetBlendAmount());
    for (const auto& [id, part] : panels) {
        const JsonObject& edit = *part.GetJson();
        const bool mayHaveDrawn = module.isEmpty() || module == id;
        if (mayHaveDrawn && !preset.empty() && FindText(edit, PanelEdit::Preset, {}) == preset)
            return {FindText(edit, PanelEdit::Name, preset),
                    FindWhole(edit, PanelEdit::Intensity, share)};
    }
    return {preset, share};
}

std::size_t EditState::CountCommitted() const
{
    const auto isOpen = [](const EditLayer& layer) { return layer.isOpen; };
    return static_cast<std::size_t>(std::find_if(layers.begin(), layers.end(), isOpen) -
                                    layers.begin());
}

std::size_t EditState::CountAbove() const
{
    const auto isOpen = [](const EditLayer& layer) { return layer.isOpen; };
    const auto topmost = std::find_if(layers.rbegin(), layers.rend(), isOpen);
    return topmost == layers.rend() ? 0 : static_cast<std::size_t>(topmost - layers.rbegin());
}

bool IsSamePackage(const EffectsSettings& first, const EffectsSettings& second)
{
    return &first == &second ||
           (first.Package().GetPackageName() == second.Package().GetPackageName() &&
            first.Package().GetPresetName() == second.Package().GetPresetName() &&
            first.GetBlendAmount() == second.GetBlendAmount() &&
            EditStateFormat::EffectsText(first) == EditStateFormat::EffectsText(second));
}

bool operator==(const EditLayer& first, const EditLayer& second)
{
    return first.module == second.module && first.isOn == second.isOn &&
           first.isOpen == second.isOpen && IsSamePackage(*first.settings, *second.settings);
}

bool operator==(const EditState& first, const EditState& second)
{
    return first.panels == second.panels && first.layers == second.layers;
}

} // namespace LumetraHost
