// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "LumetraEditor/NewLook.h"
#include "adjust/edit/Adjustments.h"

#include <set>
#include <string>
#include <utility>
#include <vector>

namespace LumetraAdjust {

/// Makes a look of adjustments, as far as the user wants them in it.
class LookDraft
{
public:
    using Parameter = std::pair<std::string, std::string>; ///< effect and parameter

    struct Choices
    {
        QString name;
        std::set<int> sections; ///< see SectionPlan
        LumetraEditor::NewLook::Intensity intensity = LumetraEditor::NewLook::Intensity::Blend;
        std::set<Parameter> sliders = {}; ///< the parameters that get an extra slider
    };

    /// `adjustments` are kept by reference.
    explicit LookDraft(const Adjustments& adjustments) : m_adjustments(adjustments) {}

    /// The sections with effects that change something.
    std::set<int> FindSections() const;
    /// The parameters of these sections that can have an extra slider: those that have been moved.
    std::vector<Parameter> FindSliders(const std::set<int>& sections) const;
    /// Finds the parameters that an intensity of kind Sliders moves: each that acts alone, from the
    /// value that changes nothing to its own, without those that have a slider of their own.
    std::vector<LumetraEditor::LookVariable> FindVariables(const Choices& choices) const;
    LumetraEditor::NewLook Make(const Choices& choices) const;

private:
    bool IsIn(const std::string& effectID, const std::set<int>& sections) const;
    void AddVariables(const LumetraEditor::EffectDescription& effect, const Choices& choices,
                      std::vector<LumetraEditor::LookVariable>& variables) const;
    void AddCurves(std::vector<LumetraEditor::LookVariable>& variables) const;
    LumetraEditor::LookSlider MakeSlider(const Parameter& parameter) const;

    const Adjustments& m_adjustments;
};

} // namespace LumetraAdjust
