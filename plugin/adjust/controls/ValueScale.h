// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "LumetraEditor/EffectDescription.h"

namespace LumetraAdjust {

/// Maps a parameter onto the whole positions of a slider. The default value is position 0, so that
/// a reset is exact; steps are 1, 0.1, 0.01 and so on, fine enough for the parameter's range.
class ValueScale
{
public:
    explicit ValueScale(const LumetraEditor::ParameterDescription& parameter);

    int GetLowest() const;
    int GetHighest() const;
    double GetStep() const { return m_step; }
    /// How many digits behind the point tell all steps apart.
    int GetDecimals() const { return m_decimals; }

    /// The nearest position; a value out of the range counts as its nearest end.
    int ToPosition(double value) const;
    double ToValue(int position) const;

private:
    double m_minimum;
    double m_maximum;
    double m_default;
    double m_step = 1;
    int m_decimals = 0;
};

} // namespace LumetraAdjust
