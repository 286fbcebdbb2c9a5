// SPDX-License-Identifier: GPL-2.0-or-later
#include "adjust/controls/ValueScale.h"

#include <algorithm>
#include <cmath>

namespace LumetraAdjust {
namespace {

using LumetraEditor::ParameterDescription;

constexpr double FewestSteps = 100;
// Stops and kelvins are moved by finer steps; whole numbers per cent are not.
constexpr double FineSteps = 150;
// A quotient that is a whole number but for this counts as one.
constexpr double Rounding = 1e-9;

/// The exponent of the largest power of ten with at least FewestSteps steps.
int FindExponent(double width)
{
    int exponent = static_cast<int>(std::floor(std::log10(width / FewestSteps) + Rounding));
    if (exponent != 0 && width / std::pow(10.0, exponent) < FineSteps)
        --exponent;
    return exponent;
}

double Clean(double value, int decimals)
{
    const double scale = std::pow(10.0, decimals);
    return std::round(value * scale) / scale;
}

} // namespace

ValueScale::ValueScale(const ParameterDescription& parameter)
    : m_minimum(parameter.minimum), m_maximum(parameter.maximum), m_default(parameter.defaultValue)
{
    const double width = m_maximum - m_minimum;
    if (parameter.kind != ParameterDescription::Kind::Number || width <= 0)
        return;
    const int exponent = FindExponent(width);
    m_step = std::pow(10.0, exponent);
    m_decimals = std::max(0, -exponent);
}

/// Whole steps from the default, so that the ends may lie a little inside the range.
int ValueScale::GetLowest() const
{
    return static_cast<int>(std::ceil((m_minimum - m_default) / m_step - Rounding));
}

int ValueScale::GetHighest() const
{
    return static_cast<int>(std::floor((m_maximum - m_default) / m_step + Rounding));
}

int ValueScale::ToPosition(double value) const
{
    const double limited = std::clamp(value, m_minimum, m_maximum);
    const int position = static_cast<int>(std::lround((limited - m_default) / m_step));
    return std::clamp(position, GetLowest(), GetHighest());
}

/// The default itself may have more digits than a step.
double ValueScale::ToValue(int position) const
{
    if (position == 0)
        return m_default;
    return std::clamp(Clean(m_default + position * m_step, m_decimals + 2), m_minimum, m_maximum);
}

} // namespace LumetraAdjust
