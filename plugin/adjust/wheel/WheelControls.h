// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "adjust/controls/EffectControls.h"
#include "adjust/edit/AdjustCommands.h"

#include <string>
#include <vector>

class QGridLayout;
class QLabel;

namespace LumetraAdjust {

class EffectRows;
class HueWheel;
class NeutralSlider;

/// A wheel for each pair of parameters that are a hue and its saturation, with a slider below it
/// where there is a luminance too, and rows for all other parameters of the effect.
class WheelControls : public EffectControls
{
    Q_OBJECT

public:
    /// `commands` are kept by reference. The effect has been described.
    WheelControls(const std::string& effectID, AdjustCommands& commands, QWidget* parent = nullptr);

    /// True for an effect that has a hue and its saturation.
    static bool Fits(const LumetraEditor::EffectDescription& effect);

    void ShowValues() override;
    void ShowTexts() override;

private:
    struct Range
    {
        std::string hue;
        std::string saturation;
        std::string luminance; ///< empty where there is none
        QLabel* title = nullptr;
        HueWheel* wheel = nullptr;
        EffectRows* rows = nullptr; ///< null where there is no luminance
    };

    void AddRange(Range range, QGridLayout& grid);
    void ConnectWheel(const Range& range);
    QString GetTitle(const Range& range) const;
    QString GetStepText(const Range& range) const;

    std::string m_effectID;
    AdjustCommands& m_commands;
    std::vector<Range> m_ranges;
    EffectRows* m_rest;
};

} // namespace LumetraAdjust
