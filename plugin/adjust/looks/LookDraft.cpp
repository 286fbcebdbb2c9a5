// SPDX-License-Identifier: GPL-2.0-or-later
#include "adjust/looks/LookDraft.h"

#include "adjust/controls/ValueScale.h"
#include "adjust/curve/CurvePoints.h"
#include "adjust/edit/AdjustTexts.h"
#include "adjust/edit/SectionPlan.h"

namespace LumetraAdjust {
namespace {

using LumetraEditor::EffectDescription;
using LumetraEditor::LookSlider;
using LumetraEditor::LookVariable;
using LumetraEditor::NewLook;
using LumetraEditor::ParameterDescription;

bool IsCurve(const EffectDescription& effect)
{
    return effect.effectID == CurvePoints::EffectID;
}

} // namespace

bool LookDraft::IsIn(const std::string& effectID, const std::set<int>& sections) const
{
    return !m_adjustments.IsNeutral(effectID) && sections.count(SectionPlan::Find(effectID)) > 0;
}

std::set<int> LookDraft::FindSections() const
{
    std::set<int> sections;
    for (const EffectDescription& effect : m_adjustments.GetDescriptions())
        if (!m_adjustments.IsNeutral(effect.effectID))
            sections.insert(SectionPlan::Find(effect.effectID));
    return sections;
}

std::vector<LookDraft::Parameter> LookDraft::FindSliders(const std::set<int>& sections) const
{
    std::vector<Parameter> found;
    for (const EffectDescription& effect : m_adjustments.GetDescriptions()) {
        if (IsCurve(effect) || !IsIn(effect.effectID, sections))
            continue;
        for (const ParameterDescription& parameter : effect.parameters)
            if (parameter.kind != ParameterDescription::Kind::Switch &&
                m_adjustments.Get(effect.effectID, parameter.name) != parameter.defaultValue)
                found.emplace_back(effect.effectID, parameter.name);
    }
    return found;
}

/// Lifts the points of the curves from the diagonal to where they are.
void LookDraft::AddCurves(std::vector<LookVariable>& variables) const
{
    for (int channel = 0; channel < CurvePoints::Channels; ++channel) {
        const CurvePoints curve = CurvePoints::Read(m_adjustments, channel);
        const Adjustments::Values values = curve.Write(channel);
        for (int i = 0; i < curve.Count() && !curve.IsDiagonal(); ++i) {
            const auto& x = values[static_cast<std::size_t>(1 + 2 * i)];
            const auto& y = values[static_cast<std::size_t>(2 + 2 * i)];
            if (x.second != y.second)
                variables.push_back({CurvePoints::EffectID, y.first, x.second, y.second});
        }
    }
}

void LookDraft::AddVariables(const EffectDescription& effect, const Choices& choices,
                             std::vector<LookVariable>& variables) const
{
    for (const ParameterDescription& parameter : effect.parameters) {
        const double value = m_adjustments.Get(effect.effectID, parameter.name);
        if (parameter.actsAlone && value != parameter.defaultValue &&
            choices.sliders.count({effect.effectID, parameter.name}) == 0)
            variables.push_back({effect.effectID, parameter.name, parameter.defaultValue, value});
    }
}

std::vector<LookVariable> LookDraft::FindVariables(const Choices& choices) const
{
    std::vector<LookVariable> variables;
    for (const EffectDescription& effect : m_adjustments.GetDescriptions()) {
        if (!IsIn(effect.effectID, choices.sections))
            continue;
        if (IsCurve(effect))
            AddCurves(variables);
        else
            AddVariables(effect, choices, variables);
    }
    return variables;
}

/// The positions of the slider are those of the panel, so that it stands exactly at the value.
LookSlider LookDraft::MakeSlider(const Parameter& parameter) const
{
    const EffectDescription& effect = *m_adjustments.Find(parameter.first);
    const ParameterDescription& number = *AdjustTexts::Find(effect, parameter.second);
    const ValueScale scale(number);
    LookSlider slider;
    slider.title = AdjustTexts::MakeTitle(effect, parameter.second);
    slider.begin = scale.GetLowest();
    slider.end = scale.GetHighest();
    slider.variables.push_back({parameter.first, parameter.second, scale.ToValue(slider.begin),
                                scale.ToValue(slider.end)});
    return slider;
}

NewLook LookDraft::Make(const Choices& choices) const
{
    NewLook look;
    look.name = choices.name;
    look.intensity = choices.intensity;
    look.settings.Effects() = m_adjustments.MakeEffects(
        [&](const std::string& effectID) { return IsIn(effectID, choices.sections); });
    if (choices.intensity == NewLook::Intensity::Sliders)
        look.variables = FindVariables(choices);
    look.sliders.emplace();
    for (const Parameter& parameter : FindSliders(choices.sections))
        if (choices.sliders.count(parameter) > 0)
            look.sliders->push_back(MakeSlider(parameter));
    return look;
}

} // namespace LumetraAdjust
