// SPDX-License-Identifier: GPL-2.0-or-later
#include "adjust/wheel/WheelControls.h"

#include "adjust/controls/EffectRows.h"
#include "adjust/controls/NeutralSlider.h"
#include "adjust/controls/ValueRow.h"
#include "adjust/edit/AdjustTexts.h"
#include "adjust/wheel/HueWheel.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

namespace LumetraAdjust {
namespace {

using LumetraEditor::EffectDescription;
using LumetraEditor::ParameterDescription;

constexpr int Gap = 8;
constexpr int Columns = 2;
constexpr char HueEnding[] = "Hue", SaturationEnding[] = "Saturation",
               LuminanceEnding[] = "Luminance";

/// "shadow" for "shadowHue"; empty for another parameter.
std::string FindStem(const ParameterDescription& parameter)
{
    const std::string ending = HueEnding;
    const std::string& name = parameter.name;
    const bool isHue = parameter.kind == ParameterDescription::Kind::Angle &&
                       name.size() > ending.size() &&
                       name.compare(name.size() - ending.size(), ending.size(), ending) == 0;
    return isHue ? name.substr(0, name.size() - ending.size()) : std::string();
}

/// The parameter's name, if the effect has it; else nothing.
std::string FindName(const EffectDescription& effect, const std::string& name)
{
    return AdjustTexts::Find(effect, name) ? name : std::string();
}

std::vector<std::string> FindStems(const EffectDescription& effect)
{
    std::vector<std::string> stems;
    for (const ParameterDescription& parameter : effect.parameters) {
        const std::string stem = FindStem(parameter);
        if (!stem.empty() && !FindName(effect, stem + SaturationEnding).empty())
            stems.push_back(stem);
    }
    return stems;
}

} // namespace

bool WheelControls::Fits(const EffectDescription& effect)
{
    return !FindStems(effect).empty();
}

WheelControls::WheelControls(const std::string& effectID, AdjustCommands& commands, QWidget* parent)
    : EffectControls(parent), m_effectID(effectID), m_commands(commands), m_rest(nullptr)
{
    const EffectDescription& effect = *commands.GetAdjustments().Find(effectID);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Gap);
    auto* const grid = new QGridLayout;
    grid->setSpacing(Gap);
    column->addLayout(grid);
    for (const std::string& stem : FindStems(effect))
        AddRange(
            {stem + HueEnding, stem + SaturationEnding, FindName(effect, stem + LuminanceEnding)},
            *grid);
    m_rest = new EffectRows(effectID, commands, [this](const ParameterDescription& parameter) {
        return std::none_of(m_ranges.begin(), m_ranges.end(), [&](const Range& range) {
            return parameter.name == range.hue || parameter.name == range.saturation ||
                   parameter.name == range.luminance;
        });
    });
    column->addWidget(m_rest);
    ShowTexts();
    ShowValues();
}

void WheelControls::AddRange(Range range, QGridLayout& grid)
{
    auto* const cell = new QVBoxLayout;
    cell->setSpacing(2);
    range.title = new QLabel(this);
    range.title->setAlignment(Qt::AlignHCenter);
    range.wheel = new HueWheel(this);
    range.wheel->setObjectName(QString::fromStdString(m_effectID + ".wheel." + range.hue));
    cell->addWidget(range.title);
    cell->addWidget(range.wheel);
    if (!range.luminance.empty()) {
        range.rows = new EffectRows(m_effectID, m_commands, [&](const ParameterDescription& one) {
            return one.name == range.luminance;
        });
        range.rows->FindRow(range.luminance)->HideName();
        cell->addWidget(range.rows);
    }
    const int position = static_cast<int>(m_ranges.size());
    grid.addLayout(cell, position / Columns, position % Columns);
    grid.setColumnStretch(position % Columns, 1);
    ConnectWheel(range);
    m_ranges.push_back(range);
}

void WheelControls::ConnectWheel(const Range& range)
{
    connect(range.wheel, &HueWheel::moved, this, [this, range](double hue, double saturation) {
        m_commands.Move(m_effectID, {{range.hue, hue}, {range.saturation, saturation}});
    });
    connect(range.wheel, &HueWheel::finished, this,
            [this, range] { m_commands.Finish(GetStepText(range)); });
    connect(range.wheel, &HueWheel::resetRequested, this, [this, range] {
        m_commands.Set(m_effectID, {{range.hue, 0}, {range.saturation, 0}},
                       tr("Reset “%1”").arg(GetStepText(range)));
    });
}

/// The common beginning of the names of a range's parameters: "Shadows" of "Shadows: Hue".
QString WheelControls::GetTitle(const Range& range) const
{
    const EffectDescription& effect = *m_commands.GetAdjustments().Find(m_effectID);
    return AdjustTexts::Find(effect, range.hue)->title.section(QLatin1String(": "), 0, 0);
}

QString WheelControls::GetStepText(const Range& range) const
{
    return QStringLiteral("%1: %2").arg(m_commands.GetAdjustments().Find(m_effectID)->title,
                                        GetTitle(range));
}

void WheelControls::ShowValues()
{
    const Adjustments& adjustments = m_commands.GetAdjustments();
    for (const Range& range : m_ranges) {
        range.wheel->Show(adjustments.Get(m_effectID, range.hue),
                          adjustments.Get(m_effectID, range.saturation));
        if (range.rows)
            range.rows->ShowValues();
    }
    m_rest->ShowValues();
}

void WheelControls::ShowTexts()
{
    for (const Range& range : m_ranges) {
        range.title->setText(GetTitle(range));
        range.wheel->SetName(GetStepText(range));
        if (range.rows)
            range.rows->ShowTexts();
    }
    m_rest->ShowTexts();
}

} // namespace LumetraAdjust
