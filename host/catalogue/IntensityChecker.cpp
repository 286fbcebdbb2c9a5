// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/IntensityChecker.h"

#include "Zorvik/Quindle/EffectsSettings.h"
#include "catalogue/CatalogueKeys.h"
#include "catalogue/CheckedNode.h"
#include "catalogue/EffectsChecker.h"
#include "storage/JsonWriter.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace LumetraHost {
namespace {

using Keys = CatalogueKeys;
using Zorvik::Quindle::EffectsSettings;

bool IsSlider(const CheckedNode& intensity)
{
    return intensity.Int(Keys::Type) == static_cast<int>(CatalogueIntensity::Slider) &&
           intensity.Has(Keys::Slider);
}

void WarnUnlessWithin(const CheckedNode& node, const char* key, int minimum, int maximum)
{
    const auto value = node.Int(key);
    if (value && (*value < minimum || *value > maximum))
        node.WarningAt(key, "expected a number from " + std::to_string(minimum) + " to " +
                                std::to_string(maximum) + ", found " + std::to_string(*value));
}

void CheckBlending(const CheckedNode& blending)
{
    blending.NoteUnknownKeys({Keys::Value, Keys::Begin, Keys::End});
    WarnUnlessWithin(blending, Keys::Value, 1, 100);
    WarnUnlessWithin(blending, Keys::Begin, EffectsSettings::FullEffect, EffectsSettings::NoEffect);
    WarnUnlessWithin(blending, Keys::End, EffectsSettings::FullEffect, EffectsSettings::NoEffect);
    if (!blending.Has(Keys::Value))
        blending.Warning("expected a \"value\" from 1 to 100, found none");
}

void WarnOfEqualEnds(const CheckedNode& node)
{
    const double begin = node.Number(Keys::Begin).value_or(0);
    const double end = node.Number(Keys::End).value_or(0);
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
    return std::min(std::abs(GetNumber(node, Keys::End) - GetNumber(node, Keys::Begin)),
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
    const bool isBeginGood = CheckEnd(slider, Keys::Begin);
    const bool isEndGood = CheckEnd(slider, Keys::End);
    const double distance = GetDistance(slider);
    if (isBeginGood && isEndGood && distance > std::numeric_limits<int>::max())
        slider.ErrorAt(Keys::End,
                       "expected \"begin\" and \"end\" at most 2147483647 apart, found " +
                           JsonWriter::NumberText(distance));
}

std::string EffectOf(const CheckedNode& variable, const CheckedNode& slider)
{
    return variable.Has(Keys::EffectId) ? variable.Text(Keys::EffectId).value_or(std::string())
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
    variable.NoteUnknownKeys({Keys::EffectId, Keys::Setting, Keys::Begin, Keys::End});
    const std::size_t errorCount = variable.GetReports().GetErrorCount();
    const std::string effectID = EffectOf(variable, slider);
    const std::string setting = variable.Text(Keys::Setting).value_or(std::string());
    WarnOfEqualEnds(variable);
    if (variable.GetReports().GetErrorCount() != errorCount)
        return;
    if (effectID.empty())
        return variable.Error("expected an \"effectID\", found none and no name of the slider");
    EffectsChecker::CheckParameter(variable, Keys::Setting, effectID, setting);
    EffectsChecker::CheckRange(variable, Keys::Begin, effectID, setting);
    EffectsChecker::CheckRange(variable, Keys::End, effectID, setting);
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
    slider.NoteUnknownKeys({Keys::Title, Keys::Begin, Keys::End, Keys::Variables});
    slider.Text(Keys::Title);
    WarnOfEqualEnds(slider);
    CheckEnds(slider);
    const auto variables = slider.Elements(Keys::Variables);
    for (const CheckedNode& variable : variables)
        CheckVariable(variable, slider);
    if (variables.empty())
        slider.Warning("expected at least one variable, found none");
}

void IntensityChecker::Check(const CheckedNode& intensity)
{
    intensity.NoteUnknownKeys({Keys::Type, Keys::Blending, Keys::Slider, Keys::None});
    const auto type = intensity.Int(Keys::Type);
    if (!type) {
        if (!intensity.Has(Keys::Type))
            intensity.Error("expected a \"type\" from 0 to 2, found none");
        return;
    }
    const auto kind = static_cast<CatalogueIntensity>(*type);
    if (kind == CatalogueIntensity::Blending) {
        if (const auto blending = NodeOfKind(intensity, Keys::Blending))
            CheckBlending(*blending);
    } else if (kind == CatalogueIntensity::Slider) {
        if (const auto slider = NodeOfKind(intensity, Keys::Slider))
            CheckSlider(*slider);
    } else if (kind != CatalogueIntensity::None) {
        intensity.ErrorAt(Keys::Type,
                          "expected a number from 0 to 2, found " + std::to_string(*type));
    }
}

void IntensityChecker::CheckEffects(const CheckedNode& intensity, const CheckedNode& item,
                                    const std::set<std::string>& effectIDs)
{
    if (!IsSlider(intensity))
        return;
    const auto slider = intensity.Node(Keys::Slider);
    for (const CheckedNode& variable : slider->Elements(Keys::Variables)) {
        const std::string effectID = EffectOf(variable, *slider);
        if (effectIDs.count(effectID) == 0)
            item.Error("expected the effect \"" + effectID +
                       "\", which the intensity slider drives, found none in the preset");
    }
}

SliderParameters IntensityChecker::ReadParameters(const CheckedNode& slider)
{
    SliderParameters result{slider.GetName(), {}};
    for (const CheckedNode& variable : slider.Elements(Keys::Variables))
        result.parameters.emplace_back(EffectOf(variable, slider),
                                       variable.Text(Keys::Setting).value_or(std::string()));
    return result;
}

void IntensityChecker::CheckStart(const CheckedNode& intensity, const CheckedNode& item,
                                  const CheckedNode& effects)
{
    if (!IsSlider(intensity))
        return;
    const auto slider = intensity.Node(Keys::Slider);
    const auto variables = slider->Elements(Keys::Variables);
    if (variables.empty() || GetDistance(*slider) == 0)
        return;
    const auto parameter = ReadParameters(*slider).parameters.front();
    const double begin = GetNumber(variables.front(), Keys::Begin);
    const double end = GetNumber(variables.front(), Keys::End);
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
    if (!IsSlider(intensity))
        return;
    const auto moved = ReadParameters(*intensity.Node(Keys::Slider)).parameters;
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
