// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "adjust/controls/EffectControls.h"
#include "adjust/edit/AdjustCommands.h"

#include <string>
#include <utility>
#include <vector>

class QVBoxLayout;

namespace LumetraAdjust {

class FoldGroup;

/// The controls of all effects of one section, which are made when the section is first opened.
class SectionPage : public EffectControls
{
    Q_OBJECT

public:
    /// `commands` are kept by reference.
    SectionPage(int section, AdjustCommands& commands, QWidget* parent = nullptr);

    /// Makes the controls; does nothing when they are there already.
    void Build();
    bool IsBuilt() const { return m_column != nullptr; }
    /// True when all effects of the section have their defaults.
    bool IsDefault() const;
    /// Puts all effects of the section back, as one step.
    void Reset();

    void ShowValues() override;
    void ShowTexts() override;

private:
    std::vector<const LumetraEditor::EffectDescription*> GetEffects() const;
    EffectControls* MakeControls(const LumetraEditor::EffectDescription& effect) const;
    void AddEffect(const LumetraEditor::EffectDescription& effect);
    void AddNumbers(const LumetraEditor::EffectDescription& effect);
    FoldGroup* AddGroup(const std::string& effectID, bool isOpen,
                        const std::function<EffectControls*()>& make);

    int m_section;
    AdjustCommands& m_commands;
    QVBoxLayout* m_column = nullptr;
    std::vector<EffectControls*> m_plain;                     ///< without a heading
    std::vector<std::pair<std::string, FoldGroup*>> m_groups; ///< by their effects
    std::vector<FoldGroup*> m_numbers;                        ///< wheels as numbers
};

} // namespace LumetraAdjust
