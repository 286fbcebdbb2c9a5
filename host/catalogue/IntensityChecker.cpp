// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/IntensityChecker.h"

#include "catalogue/CheckedNode.h"
#include "catalogue/EffectsChecker.h"
#include "storage/JsonWriter.h"

#include <algorithm>
#include <cmath>
#include <limits>

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

/// Reads a number without a report; anything else is 0.
double GetNumber(const CheckedNode& node, const char* key)
{
    const JsonValue* value = node.GetObject().Find(key);
    const auto* number = value ? value->As<JsonNumber>() : nullptr;
    return number ? number->value : 0;
}

/// Returns how far "begin" and "end" are apart; always finite.
double GetDistance(const CheckedNode& node)
{
    return std::min(std::abs(GetNumber(node, EndKey) - GetNumber(node, BeginKey)),
                    std::numeric_limits<double>::max());
}

/// Sliders have whole positions, though their ends are stored like other numbers. True when the
/// end is one of them, or missing.
bool CheckEnd(const CheckedNode& slider, const char* key)
{
    const double end = GetNumber(slider, key);
    if (end < std::numeric_limits<int>::min() || end > std::numeric_limits<int>::max()) {
        slider.Int(key); // reports the range and what was found
        return false;
    }
    if (end != std::trunc(end))
        slider.WarningAt(key, "expected a whole number, found " + JsonWriter::NumberText(end));
    return true;
}

void CheckEnds(const CheckedNode& slider)
{
    const bool isBeginGood = CheckEnd(slider, BeginKey);
    const bool isEndGood = CheckEnd(slider, EndKey);
    const double distance = GetDistance(slider);
    if (isBeginGood && isEndGood && distance > std::numeric_limits<int>::max())
        slider.ErrorAt(EndKey, "expected \"begin\" and \"end\" at most 2147483647 apart, found " +
                                   JsonWriter::NumberText(distance));
}

std::string EffectOf(const CheckedNode& variable, const CheckedNode& slider)
{
    return variable.Has(EffectIDKey) ? variable.Text(EffectIDKey).value_or(std::string())
                                     : slider.GetName();
}

/// A stored value moves to the nearest position of the slider: with steps wider than all values of
/// the parameter, that could be any value at all.
void CheckStep(const CheckedNode& variable, const CheckedNode& slider, double width)
{
    const double positions = GetDistance(slider);
    if (positions > 0 && GetDistance(variable) / positions > width)
        variable.Error("expected one step of the slider to move the parameter by at most " +
                       JsonWriter::NumberText(width) + ", found " +
                       JsonWriter::NumberText(GetDistance(variable) / positions));
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
    EffectsChecker::CheckRange(variable, BeginKey, effectID, setting);
    EffectsChecker::CheckRange(variable, EndKey, effectID, setting);
    CheckStep(variable, slider, EffectsChecker::GetWidth(effectID, setting));
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
    CheckEnds(slider);
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

SliderParameters IntensityChecker::ReadParameters(const CheckedNode& slider)
{
    SliderParameters result{slider.GetName(), {}};
    for (const CheckedNode& variable : slider.Elements(VariablesKey))
        result.parameters.emplace_back(EffectOf(variable, slider),
                                       variable.Text(SettingKey).value_or(std::string()));
    return result;
}

void IntensityChecker::CheckStart(const CheckedNode& intensity, const CheckedNode& item,
                                  const CheckedNode& effects)
{
    if (intensity.Int(TypeKey) != Slider || !intensity.Has(SliderKey))
        return;
    const auto slider = intensity.Node(SliderKey);
    const auto variables = slider->Elements(VariablesKey);
    if (variables.empty() || GetDistance(*slider) == 0)
        return;
    const auto parameter = ReadParameters(*slider).parameters.front();
    const double begin = GetNumber(variables.front(), BeginKey);
    const double end = GetNumber(variables.front(), EndKey);
    const double halfStep = GetDistance(variables.front()) / GetDistance(*slider) / 2;
    const auto value = EffectsChecker::FindValue(effects, parameter.first, parameter.second);
    if (!value || begin == end ||
        (*value >= std::min(begin, end) - halfStep && *value <= std::max(begin, end) + halfStep))
        return;
    item.Warning("expected \"" + parameter.second + "\" of \"" + parameter.first + "\" from " +
                 JsonWriter::NumberText(std::min(begin, end)) + " to " +
                 JsonWriter::NumberText(std::max(begin, end)) +
                 ", where the intensity slider moves it, found " + JsonWriter::NumberText(*value) +
                 ": the slider starts at its end");
}

void IntensityChecker::CheckSharing(const CheckedNode& intensity, const CheckedNode& item,
                                    const std::set<std::string>& effectIDs,
                                    const std::vector<SliderParameters>& sliders)
{
    if (intensity.Int(TypeKey) != Slider || !intensity.Has(SliderKey))
        return;
    const auto moved = ReadParameters(*intensity.Node(SliderKey)).parameters;
    for (const SliderParameters& slider : sliders) {
        const auto& own = slider.parameters;
        if (own.empty() || effectIDs.count(own.front().first) == 0)
            continue;
        for (const auto& parameter : moved)
            if (std::find(own.begin(), own.end(), parameter) != own.end())
                item.Warning("expected an intensity on parameters without an extra slider, found "
                             "\"" +
                             parameter.second + "\" of \"" + parameter.first + "\", which \"" +
                             slider.name + "\" moves too: that slider does nothing");
    }
}

} // namespace LumetraHost
