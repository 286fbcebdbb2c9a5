// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/IntensityChecker.h"

#include "catalogue/CheckedNode.h"
#include "catalogue/EffectsChecker.h"

namespace LumetraHost {
namespace {

constexpr char TypeKey[] = "type";
constexpr char BlendKey[] = "blendSetting";
constexpr char SliderKey[] = "sliderSetting";
constexpr char TitleKey[] = "title";
constexpr char BeginKey[] = "begin";
constexpr char EndKey[] = "end";
constexpr char ValueKey[] = "value";
constexpr char VariablesKey[] = "variables";
constexpr char EffectIDKey[] = "effectID";
constexpr char SettingKey[] = "setting";

enum Type
{
    NoIntensity = 0,
    Blending = 1,
    Slider = 2
};

void WarnUnlessWithin(const CheckedNode& node, const char* key, int minimum, int maximum)
{
    const auto value = node.Int(key);
    if (value && (*value < minimum || *value > maximum))
        node.WarningAt(key, "expected a number from " + std::to_string(minimum) + " to " +
                                std::to_string(maximum) + ", found " + std::to_string(*value));
}

void CheckBlending(const CheckedNode& blending)
{
    blending.NoteUnknownKeys({ValueKey, BeginKey, EndKey});
    WarnUnlessWithin(blending, ValueKey, 1, 100);
    WarnUnlessWithin(blending, BeginKey, 1, 255);
    WarnUnlessWithin(blending, EndKey, 1, 255);
    if (!blending.Has(ValueKey))
        blending.Warning("expected a \"value\" from 1 to 100, found none");
}

void WarnOfEqualEnds(const CheckedNode& node)
{
    const double begin = node.Number(BeginKey).value_or(0);
    const double end = node.Number(EndKey).value_or(0);
    if (begin == end)
        node.Warning("expected different numbers as \"begin\" and \"end\"");
}

std::string EffectOf(const CheckedNode& variable, const CheckedNode& slider)
{
    return variable.Has(EffectIDKey) ? variable.Text(EffectIDKey).value_or(std::string())
                                     : slider.GetName();
}

void CheckVariable(const CheckedNode& variable, const CheckedNode& slider)
{
    variable.NoteUnknownKeys({EffectIDKey, SettingKey, BeginKey, EndKey});
    const std::size_t errorCount = variable.GetReports().GetErrorCount();
    const std::string effectID = EffectOf(variable, slider);
    const std::string setting = variable.Text(SettingKey).value_or(std::string());
    WarnOfEqualEnds(variable);
    if (variable.GetReports().GetErrorCount() != errorCount)
        return;
    if (effectID.empty())
        return variable.Error("expected an \"effectID\", found none and no name of the slider");
    EffectsChecker::CheckParameter(variable, SettingKey, effectID, setting);
}

/// The node of the intensity's own kind, or a remark that it is missing.
std::optional<CheckedNode> NodeOfKind(const CheckedNode& intensity, const char* key)
{
    if (!intensity.Has(key))
        intensity.Warning("expected a node \"" + std::string(key) + "\", found none");
    return intensity.Node(key);
}

} // namespace

void IntensityChecker::CheckSlider(const CheckedNode& slider)
{
    slider.NoteUnknownKeys({TitleKey, BeginKey, EndKey, VariablesKey});
    slider.Text(TitleKey);
    WarnOfEqualEnds(slider);
    const auto variables = slider.Elements(VariablesKey);
    for (const CheckedNode& variable : variables)
        CheckVariable(variable, slider);
    if (variables.empty())
        slider.Warning("expected at least one variable, found none");
}

void IntensityChecker::Check(const CheckedNode& intensity)
{
    intensity.NoteUnknownKeys({TypeKey, BlendKey, SliderKey, "intensityNone"});
    const auto type = intensity.Int(TypeKey);
    if (!type) {
        if (!intensity.Has(TypeKey))
            intensity.Error("expected a \"type\" from 0 to 2, found none");
        return;
    }
    if (*type == Blending) {
        if (const auto blending = NodeOfKind(intensity, BlendKey))
            CheckBlending(*blending);
    } else if (*type == Slider) {
        if (const auto slider = NodeOfKind(intensity, SliderKey))
            CheckSlider(*slider);
    } else if (*type != NoIntensity) {
        intensity.ErrorAt(TypeKey, "expected a number from 0 to 2, found " + std::to_string(*type));
    }
}

void IntensityChecker::CheckEffects(const CheckedNode& intensity, const CheckedNode& item,
                                    const std::set<std::string>& effectIDs)
{
    if (intensity.Int(TypeKey) != Slider || !intensity.Has(SliderKey))
        return;
    const auto slider = intensity.Node(SliderKey);
    for (const CheckedNode& variable : slider->Elements(VariablesKey)) {
        const std::string effectID = EffectOf(variable, *slider);
        if (effectIDs.count(effectID) == 0)
            item.Error("expected the effect \"" + effectID +
                       "\", which the intensity slider drives, found none in the preset");
    }
}

} // namespace LumetraHost
