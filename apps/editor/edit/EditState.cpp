// SPDX-License-Identifier: GPL-2.0-or-later
#include "edit/EditState.h"

#include "LumetraEditor/IEditorPlugin.h"
#include "edit/EditStateFormat.h"

#include <cmath>
#include <limits>
#include <string>

namespace LumetraEditor {
namespace {

using LumetraHost::JsonNumber;
using LumetraHost::JsonObject;
using LumetraHost::JsonValue;
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

// The keys are those that IEditorPanel::SaveEdit() gives a meaning to.
LumetraHost::EditRecord EditState::MakeRecord(const EffectsSettings& package) const
{
    const std::string& preset = package.Package().GetPresetName();
    const int share = PercentOf(package.GetBlendAmount());
    for (const auto& [id, part] : panels) {
        const JsonObject& edit = *part.GetJson();
        if (!preset.empty() && FindText(edit, IEditorPanel::EditPreset, {}) == preset)
            return {FindText(edit, IEditorPanel::EditName, preset),
                    FindWhole(edit, IEditorPanel::EditIntensity, share)};
    }
    return {preset, share};
}

bool HaveSamePackages(const std::vector<EffectsSettings>& first,
                      const std::vector<EffectsSettings>& second)
{
    return first.size() == second.size() &&
           EditStateFormat::PackagesText(first) == EditStateFormat::PackagesText(second);
}

bool operator==(const EditState& first, const EditState& second)
{
    return first.panels == second.panels && HaveSamePackages(first.committed, second.committed);
}

} // namespace LumetraEditor
