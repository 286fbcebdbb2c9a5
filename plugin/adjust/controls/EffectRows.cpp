// SPDX-License-Identifier: GPL-2.0-or-later
#include "adjust/controls/EffectRows.h"

#include "adjust/controls/NeutralSlider.h"
#include "adjust/controls/ValueRow.h"
#include "adjust/edit/AdjustTexts.h"

#include <QVBoxLayout>

#include <algorithm>

namespace LumetraAdjust {
namespace {

using LumetraEditor::EffectDescription;
using LumetraEditor::ParameterDescription;

constexpr int RowGap = 2;

} // namespace

EffectRows::EffectRows(const std::string& effectID, AdjustCommands& commands,
                       const Choice& isChosen, QWidget* parent)
    : EffectControls(parent), m_effectID(effectID), m_commands(commands)
{
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(RowGap);
    for (const ParameterDescription& parameter :
         commands.GetAdjustments().Find(effectID)->parameters)
        if (!isChosen || isChosen(parameter))
            AddRow(parameter, *column);
    ShowTexts();
    ShowValues();
}

void EffectRows::AddRow(const ParameterDescription& parameter, QVBoxLayout& column)
{
    auto* const row = new ValueRow(parameter, this);
    const std::string name = parameter.name;
    row->GetSlider().setObjectName(
        QString::fromStdString(m_effectID + '.' + name)); // by which tests and scripts find it
    connect(row, &ValueRow::moved, this, [this, name](double value) {
        m_commands.Move(m_effectID, {{name, value}});
    });
    connect(row, &ValueRow::finished, this,
            [this, name] { m_commands.Finish(MakeStepText(name)); });
    connect(row, &ValueRow::typed, this, [this, name](double value) {
        m_commands.Set(m_effectID, {{name, value}}, MakeStepText(name));
    });
    connect(row, &ValueRow::resetRequested, this, [this, parameter] {
        m_commands.Set(m_effectID, {{parameter.name, parameter.defaultValue}},
                       tr("Reset “%1”").arg(MakeStepText(parameter.name)));
    });
    column.addWidget(row);
    m_rows.push_back({name, row});
}

ValueRow* EffectRows::FindRow(const std::string& parameter) const
{
    const auto found = std::find_if(m_rows.begin(), m_rows.end(),
                                    [&](const Row& row) { return row.parameter == parameter; });
    return found == m_rows.end() ? nullptr : found->widget;
}

void EffectRows::UseShortTitles(bool before)
{
    m_title = before ? Title::Before : Title::Behind;
    ShowTexts();
}

void EffectRows::SetGroove(const std::string& parameter, const QVector<QColor>& colours)
{
    if (ValueRow* const row = FindRow(parameter))
        row->GetSlider().SetGroove(colours);
}

QString EffectRows::MakeStepText(const std::string& parameter) const
{
    return AdjustTexts::MakeTitle(*m_commands.GetAdjustments().Find(m_effectID), parameter);
}

QString EffectRows::MakeName(const EffectDescription& effect,
                             const ParameterDescription& parameter) const
{
    const QString title = AdjustTexts::MakeShortTitle(effect, parameter);
    const int colon = title.indexOf(QLatin1String(": "));
    if (m_title == Title::Whole || colon < 0)
        return title;
    return m_title == Title::Before ? title.left(colon) : title.mid(colon + 2);
}

void EffectRows::ShowValues()
{
    for (const Row& row : m_rows)
        row.widget->Show(m_commands.GetAdjustments().Get(m_effectID, row.parameter));
}

void EffectRows::ShowTexts()
{
    const EffectDescription& effect = *m_commands.GetAdjustments().Find(m_effectID);
    for (const Row& row : m_rows) {
        const ParameterDescription& parameter = *AdjustTexts::Find(effect, row.parameter);
        row.widget->SetNames(MakeName(effect, parameter),
                             AdjustTexts::MakeTitle(effect, row.parameter));
        row.widget->SetRangeText(parameter);
    }
}

} // namespace LumetraAdjust
