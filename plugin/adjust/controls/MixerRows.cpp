// SPDX-License-Identifier: GPL-2.0-or-later
#include "adjust/controls/MixerRows.h"

#include "adjust/controls/EffectRows.h"
#include "adjust/controls/HueColours.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QStackedLayout>
#include <QToolButton>
#include <QVBoxLayout>
#include <QVariant>

namespace LumetraAdjust {
namespace {

using LumetraEditor::ParameterDescription;

constexpr int Gap = 4;

/// The ends of the parameters' names.
constexpr const char* Endings[] = {"Hue", "Saturation", "Luminance"};

struct Hue
{
    const char* name;
    double degrees;
};
constexpr Hue Hues[] = {{"red", 0},    {"orange", 30}, {"yellow", 60},  {"green", 120},
                        {"aqua", 180}, {"blue", 240},  {"purple", 270}, {"magenta", 300}};
constexpr double MostTurn = 30; // degrees at 100 per cent

bool EndsWith(const std::string& name, const std::string& ending)
{
    return name.size() >= ending.size() &&
           name.compare(name.size() - ending.size(), ending.size(), ending) == 0;
}

} // namespace

MixerRows::MixerRows(AdjustCommands& commands, QWidget* parent)
    : EffectControls(parent), m_choice(new QButtonGroup(this)), m_stack(new QStackedLayout)
{
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Gap);
    auto* const buttons = new QHBoxLayout;
    buttons->setSpacing(Gap);
    column->addLayout(buttons);
    column->addLayout(m_stack);
    for (int kind = 0; kind < Kinds; ++kind) {
        auto* const button = new QToolButton(this);
        button->setCheckable(true);
        button->setObjectName(QStringLiteral("mixer%1").arg(QLatin1String(Endings[kind])));
        button->setProperty("segment", true);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        button->setFocusPolicy(Qt::StrongFocus);
        buttons->addWidget(button);
        m_choice->addButton(button, kind);
        m_buttons[kind] = button;
        const std::string ending = Endings[kind];
        m_rows[kind] =
            new EffectRows(EffectID, commands, [ending](const ParameterDescription& parameter) {
                return EndsWith(parameter.name, ending);
            });
        m_rows[kind]->UseShortTitles(true);
        m_stack->addWidget(m_rows[kind]);
    }
    m_buttons[0]->setChecked(true);
    connect(m_choice, &QButtonGroup::idClicked, m_stack, &QStackedLayout::setCurrentIndex);
    PaintGrooves();
    ShowTexts();
}

void MixerRows::PaintGrooves()
{
    for (const Hue& hue : Hues) {
        const std::string name = hue.name;
        m_rows[0]->SetGroove(name + Endings[0],
                             {ColourOfHue(hue.degrees + 360 - MostTurn), ColourOfHue(hue.degrees),
                              ColourOfHue(hue.degrees + MostTurn)});
        m_rows[1]->SetGroove(name + Endings[1], {QColor(Qt::gray), ColourOfHue(hue.degrees)});
        m_rows[2]->SetGroove(name + Endings[2],
                             {ColourOfHue(hue.degrees).darker(500), ColourOfHue(hue.degrees),
                              ColourOfHue(hue.degrees, 0.35)});
    }
}

void MixerRows::ShowValues()
{
    for (EffectRows* const rows : m_rows)
        rows->ShowValues();
}

void MixerRows::ShowTexts()
{
    m_buttons[0]->setText(tr("Hue"));
    m_buttons[1]->setText(tr("Saturation"));
    m_buttons[2]->setText(tr("Luminance"));
    for (EffectRows* const rows : m_rows)
        rows->ShowTexts();
}

} // namespace LumetraAdjust
