// SPDX-License-Identifier: GPL-2.0-or-later
#include "adjust/sections/SectionPage.h"

#include "adjust/controls/EffectRows.h"
#include "adjust/controls/FoldGroup.h"
#include "adjust/controls/MixerRows.h"
#include "adjust/curve/CurveControls.h"
#include "adjust/curve/CurvePoints.h"
#include "adjust/edit/SectionPlan.h"
#include "adjust/wheel/WheelControls.h"

#include <QColor>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace LumetraAdjust {
namespace {

using LumetraEditor::EffectDescription;

constexpr int Gap = 8;

/// Warm and cold light, and the two ends of the tint, in the grooves of the white balance.
void PaintWhiteBalance(EffectRows& rows)
{
    rows.SetGroove("temperature",
                   {QColor(0x4a, 0x86, 0xd8), QColor(0xc8, 0xc8, 0xc8), QColor(0xe8, 0xa2, 0x3c)});
    rows.SetGroove("tint",
                   {QColor(0x4f, 0xae, 0x5b), QColor(0xc8, 0xc8, 0xc8), QColor(0xc8, 0x5a, 0xb8)});
}

} // namespace

SectionPage::SectionPage(int section, AdjustCommands& commands, QWidget* parent)
    : EffectControls(parent), m_section(section), m_commands(commands)
{
}

std::vector<const EffectDescription*> SectionPage::GetEffects() const
{
    std::vector<const EffectDescription*> effects;
    for (const EffectDescription& effect : m_commands.GetAdjustments().GetDescriptions())
        if (SectionPlan::Find(effect.effectID) == m_section)
            effects.push_back(&effect);
    return effects;
}

void SectionPage::Build()
{
    if (IsBuilt())
        return;
    m_column = new QVBoxLayout(this);
    m_column->setContentsMargins(2 * Gap, Gap, 2 * Gap, 2 * Gap);
    m_column->setSpacing(Gap / 2);
    for (const EffectDescription* const effect : GetEffects())
        AddEffect(*effect);
    ShowTexts();
}

/// An effect of a single number needs no heading.
void SectionPage::AddEffect(const EffectDescription& effect)
{
    if (effect.parameters.size() == 1) {
        m_plain.push_back(MakeControls(effect));
        m_column->addWidget(m_plain.back());
        return;
    }
    const std::string effectID = effect.effectID;
    const auto make = [this, effectID] {
        return MakeControls(*m_commands.GetAdjustments().Find(effectID));
    };
    m_groups.emplace_back(effectID, AddGroup(effectID, !SectionPlan::StartsShut(effectID), make));
    if (WheelControls::Fits(effect))
        AddNumbers(effect);
}

/// Hues and saturations can be typed, too.
void SectionPage::AddNumbers(const EffectDescription& effect)
{
    const std::string effectID = effect.effectID;
    m_numbers.push_back(AddGroup(effectID + ".numbers", false, [this, effectID] {
        return new EffectRows(effectID, m_commands);
    }));
}

FoldGroup* SectionPage::AddGroup(const std::string& effectID, bool isOpen,
                                 const std::function<EffectControls*()>& make)
{
    auto* const group = new FoldGroup(make, isOpen, this);
    group->GetHeading().setObjectName(QStringLiteral("fold.") + QString::fromStdString(effectID));
    m_column->addWidget(group);
    return group;
}

EffectControls* SectionPage::MakeControls(const EffectDescription& effect) const
{
    if (effect.effectID == CurvePoints::EffectID)
        return new CurveControls(m_commands);
    if (effect.effectID == MixerRows::EffectID)
        return new MixerRows(m_commands);
    if (WheelControls::Fits(effect))
        return new WheelControls(effect.effectID, m_commands);
    auto* const rows = new EffectRows(effect.effectID, m_commands);
    if (effect.effectID == "whiteBalance")
        PaintWhiteBalance(*rows);
    return rows;
}

bool SectionPage::IsDefault() const
{
    const auto effects = GetEffects();
    return std::all_of(effects.begin(), effects.end(), [this](const EffectDescription* effect) {
        return m_commands.GetAdjustments().IsDefault(effect->effectID);
    });
}

void SectionPage::Reset()
{
    std::vector<std::string> effects;
    for (const EffectDescription* const effect : GetEffects())
        effects.push_back(effect->effectID);
    m_commands.ResetEffects(effects, tr("Reset “%1”").arg(SectionPlan::GetTitle(m_section)));
}

void SectionPage::ShowValues()
{
    for (EffectControls* const controls : m_plain)
        controls->ShowValues();
    for (const auto& [effectID, group] : m_groups)
        if (group->GetControls())
            group->GetControls()->ShowValues();
    for (const FoldGroup* const group : m_numbers)
        if (group->GetControls())
            group->GetControls()->ShowValues();
}

void SectionPage::ShowTexts()
{
    for (EffectControls* const controls : m_plain)
        controls->ShowTexts();
    for (const auto& [effectID, group] : m_groups) {
        group->SetTitle(m_commands.GetAdjustments().Find(effectID)->title);
        if (group->GetControls())
            group->GetControls()->ShowTexts();
    }
    for (FoldGroup* const group : m_numbers) {
        group->SetTitle(tr("As numbers"));
        if (group->GetControls())
            group->GetControls()->ShowTexts();
    }
}

} // namespace LumetraAdjust
