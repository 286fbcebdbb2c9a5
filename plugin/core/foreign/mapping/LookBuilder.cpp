// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/foreign/mapping/LookBuilder.h"

#include "Zorvik/Quindle/EffectRegistry.h"
#include "Zorvik/Quindle/EffectSettingsImpl.h"
#include "core/foreign/ForeignNumber.h"
#include "engine/effects/EffectKinds.h"

#include <algorithm>

namespace LumetraPlugin {
namespace {

using LumetraHost::EffectKind;
using LumetraHost::EffectKinds;
using Zorvik::Quindle::EffectPtr;
using Zorvik::Quindle::EffectRegistry;
using Zorvik::Quindle::EffectSettingsImpl;

constexpr int LongestValue = 40;

/// Shortens a value for a remark; lists and structures are not shown.
QString Shorten(const ForeignValue& value)
{
    if (value.text.size() <= LongestValue)
        return value.text;
    return value.text.left(LongestValue) + QChar(0x2026);
}

/// True for what a setting holds that is not set: files list most settings at their neutral value.
bool IsUnset(const ForeignValue& value)
{
    if (value.isTree)
        return false;
    if (value.isList)
        return value.items.isEmpty();
    const QString text = value.text.trimmed();
    const auto number = ForeignNumber::Read(text);
    return text.isEmpty() || (number && *number == 0) ||
           text.compare(QLatin1String("false"), Qt::CaseInsensitive) == 0;
}

bool IsNeutral(const MappingRow& row, const ForeignValue& value)
{
    const auto number = ForeignNumber::Read(value.text);
    return IsUnset(value) || (number && *number == row.neutral);
}

/// The number moved into the range of the effect's parameter.
double Limit(LookStep step, const std::string& parameter, double value)
{
    const auto descriptor = EffectRegistry::Find(GetEffectId(step));
    for (const auto& known : descriptor->parameters)
        if (known.name == parameter)
            return std::clamp(value, known.minimum, known.maximum);
    return value;
}

} // namespace

LookBuilder::LookBuilder(const ForeignLook& look, const ImportOptions& options,
                         const QString& folder)
    : m_look(look), m_options(options), m_folder(folder)
{
}

void LookBuilder::Build()
{
    for (const auto& [setting, value] : m_look.settings)
        Run(setting, value);
}

void LookBuilder::Run(const QString& setting, const ForeignValue& value)
{
    const MappingRow* const row = MappingTable::Find(setting);
    const bool isEmpty = !value.isTree && !value.isList && value.text.trimmed().isEmpty();
    if (isEmpty)
        return;
    if (row && row->rule)
        return RunRule(*row, value);
    const bool isSilent = row && (row->carry == Carry::Silent || IsNeutral(*row, value));
    if (!isSilent && !IsUnset(value))
        m_leftOut.push_back({ImportRemark::Kind::LeftOut, setting, Shorten(value), {}});
}

void LookBuilder::RunRule(const MappingRow& row, const ForeignValue& value)
{
    m_isLeftOut = m_isLimited = false;
    m_step = row.step;
    row.rule(row, value, *this);
    if (m_isLeftOut)
        m_leftOut.push_back({ImportRemark::Kind::LeftOut, row.setting, Shorten(value), m_reason});
    else if ((row.carry == Carry::Approximate || m_isLimited) && !IsNeutral(row, value))
        GetPlace(m_step).remarks.push_back(
            {ImportRemark::Kind::Approximated, row.setting, Shorten(value),
             m_isLimited ? tr("limited to what this program can do") : QString()});
}

LookBuilder::Place& LookBuilder::GetPlace(LookStep step)
{
    return m_places[static_cast<std::size_t>(step)];
}

void LookBuilder::Set(LookStep step, const std::string& parameter, double value)
{
    Place& place = GetPlace(step);
    m_step = step;
    if (!place.effect)
        place.effect = EffectSettingsImpl::Create(GetEffectId(step));
    const double limited = Limit(step, parameter, value);
    m_isLimited = m_isLimited || limited != value;
    place.effect->SetParameter(parameter, limited);
}

void LookBuilder::Add(LookStep step, const std::string& parameter, double value)
{
    const Place& place = GetPlace(step);
    Set(step, parameter, value + (place.effect ? place.effect->GetParameter(parameter) : 0));
}

void LookBuilder::Put(LookStep step, const EffectPtr& effect)
{
    GetPlace(step).effect = effect;
}

void LookBuilder::LeaveOut(const QString& reason)
{
    m_isLeftOut = true;
    m_reason = reason;
}

double LookBuilder::GetNumber(const char* setting, double missing) const
{
    const ForeignValue* const value = m_look.Find(QLatin1String(setting));
    return value ? ForeignNumber::Read(value->text).value_or(missing) : missing;
}

bool LookBuilder::IsKept(const Place& place) const
{
    if (!place.effect)
        return false;
    const EffectKind* const kind = EffectKinds::Find(place.effect->GetEffectID());
    const LumetraHost::StageContext context{LumetraHost::Isa::Baseline,
                                            LumetraHost::PictureArea::Whole(1024, 1024)};
    return kind->reach == LumetraHost::EffectReach::Spatial
               ? kind->createPass(*place.effect, context) != nullptr
               : kind->createStage(*place.effect, context) != nullptr;
}

Zorvik::Quindle::ConstEffectList LookBuilder::GetEffects() const
{
    Zorvik::Quindle::ConstEffectList effects;
    for (const Place& place : m_places)
        if (IsKept(place))
            effects.push_back(place.effect);
    return effects;
}

std::vector<ImportRemark> LookBuilder::GetRemarks() const
{
    std::vector<ImportRemark> remarks;
    for (const Place& place : m_places)
        if (IsKept(place))
            remarks.insert(remarks.end(), place.remarks.begin(), place.remarks.end());
    remarks.insert(remarks.end(), m_leftOut.begin(), m_leftOut.end());
    return remarks;
}

} // namespace LumetraPlugin
