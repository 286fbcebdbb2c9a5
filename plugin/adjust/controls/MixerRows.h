// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "adjust/controls/EffectControls.h"
#include "adjust/edit/AdjustCommands.h"

#include <array>

class QButtonGroup;
class QStackedLayout;
class QToolButton;

namespace LumetraAdjust {

class EffectRows;

/// The colour mixer: buttons choose between hue, saturation and luminance, of which the eight hues
/// have a row each.
class MixerRows : public EffectControls
{
    Q_OBJECT

public:
    static constexpr char EffectID[] = "colourMixer";

    /// `commands` are kept by reference.
    explicit MixerRows(AdjustCommands& commands, QWidget* parent = nullptr);

    void ShowValues() override;
    void ShowTexts() override;

private:
    static constexpr int Kinds = 3;

    void PaintGrooves();

    QButtonGroup* m_choice;
    QStackedLayout* m_stack;
    std::array<QToolButton*, Kinds> m_buttons{};
    std::array<EffectRows*, Kinds> m_rows{};
};

} // namespace LumetraAdjust
