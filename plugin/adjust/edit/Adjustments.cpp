// SPDX-License-Identifier: GPL-2.0-or-later
#include "adjust/edit/Adjustments.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Brassel/ISerializerCollection.h"
#include "Zorvik/Brassel/SerializerProperty.h"
#include "Zorvik/Exception.h"
#include "Zorvik/Quindle/EffectSettingsImpl.h"

#include <boost/current_function.hpp>

#include <algorithm>
#include <set>

namespace LumetraAdjust {
namespace {

using LumetraEditor::EffectDescription;
using LumetraEditor::ParameterDescription;
using Zorvik::Brassel::SerializerProperty;
using Zorvik::Core::Property;
using Zorvik::Quindle::EffectList;
using Zorvik::Quindle::EffectPtr;
using Zorvik::Quindle::EffectSettingsImpl;
using Zorvik::Quindle::IEffectSettings;

constexpr char Place[] = "edit"; // begins the paths in messages

[[noreturn]] void Fail(const std::string& description, const char* function, int line)
{
    throw Zorvik::Exception(description, function, "adjust/Adjustments", line);
}

bool IsAtDefault(const IEffectSettings& effect, const ParameterDescription& parameter)
{
    return effect.GetParameter(parameter.name) == parameter.defaultValue;
}

/// Runs `read`; a wrong entry costs only itself.
template <class Read>
void Try(QStringList& reports, const Read& read)
{
    try {
        read();
    } catch (const Zorvik::Exception& error) {
        reports.append(QString::fromUtf8(error.what()));
    }
}

} // namespace

Adjustments::Adjustments(std::vector<EffectDescription> descriptions)
    : m_descriptions(std::move(descriptions))
{
    m_descriptions.erase(
        std::remove_if(m_descriptions.begin(), m_descriptions.end(),
                       [](const EffectDescription& one) { return !one.isOnlyNumbers; }),
        m_descriptions.end());
    for (std::size_t i = 0; i < m_descriptions.size(); ++i)
        m_effects.push_back({EffectSettingsImpl::Create(m_descriptions[i].effectID), i});
}

void Adjustments::SetDescriptions(const std::vector<EffectDescription>& descriptions)
{
    for (EffectDescription& own : m_descriptions) {
        const auto found = std::find_if(
            descriptions.begin(), descriptions.end(),
            [&own](const EffectDescription& other) { return other.effectID == own.effectID; });
        if (found != descriptions.end())
            own = *found;
    }
}

const EffectDescription* Adjustments::Find(const std::string& effectID) const
{
    const Effect* const effect = FindEffect(effectID);
    return effect ? &m_descriptions[effect->description] : nullptr;
}

const Adjustments::Effect* Adjustments::FindEffect(const std::string& effectID) const
{
    const auto found = std::find_if(m_effects.begin(), m_effects.end(), [&](const Effect& effect) {
        return m_descriptions[effect.description].effectID == effectID;
    });
    return found == m_effects.end() ? nullptr : &*found;
}

double Adjustments::Get(const std::string& effectID, const std::string& parameter) const
{
    const Effect* const effect = FindEffect(effectID);
    if (!effect)
        Fail("there is no effect \"" + effectID + "\"", BOOST_CURRENT_FUNCTION, __LINE__);
    return effect->settings->GetParameter(parameter);
}

void Adjustments::Set(const std::string& effectID, const Values& values)
{
    const Effect* const effect = FindEffect(effectID);
    if (!effect)
        Fail("there is no effect \"" + effectID + "\"", BOOST_CURRENT_FUNCTION, __LINE__);
    for (const auto& [parameter, value] : values)
        effect->settings->SetParameter(parameter, value);
}

Adjustments::Values Adjustments::GetDefaults(const std::string& effectID) const
{
    Values values;
    if (const EffectDescription* const description = Find(effectID))
        for (const ParameterDescription& parameter : description->parameters)
            values.emplace_back(parameter.name, parameter.defaultValue);
    return values;
}

void Adjustments::Reset()
{
    for (Effect& effect : m_effects)
        effect.settings = EffectSettingsImpl::Create(m_descriptions[effect.description].effectID);
}

/// An effect of which no number does anything by itself, such as a curve, is neutral at its
/// defaults alone.
bool Adjustments::IsNeutral(const std::string& effectID) const
{
    const Effect* const effect = FindEffect(effectID);
    if (!effect)
        return true;
    const auto& parameters = m_descriptions[effect->description].parameters;
    const bool hasActing = std::any_of(parameters.begin(), parameters.end(),
                                       [](const auto& one) { return one.actsAlone; });
    return std::all_of(parameters.begin(), parameters.end(), [&](const auto& one) {
        return (hasActing && !one.actsAlone) || IsAtDefault(*effect->settings, one);
    });
}

bool Adjustments::IsNeutral() const
{
    return std::all_of(m_descriptions.begin(), m_descriptions.end(),
                       [this](const auto& one) { return IsNeutral(one.effectID); });
}

bool Adjustments::IsDefault(const std::string& effectID) const
{
    const Effect* const effect = FindEffect(effectID);
    if (!effect)
        return true;
    const auto& parameters = m_descriptions[effect->description].parameters;
    return std::all_of(parameters.begin(), parameters.end(),
                       [&](const auto& one) { return IsAtDefault(*effect->settings, one); });
}

EffectPtr Adjustments::MakeEffect(const std::string& effectID) const
{
    const Effect* const effect = FindEffect(effectID);
    if (!effect)
        Fail("there is no effect \"" + effectID + "\"", BOOST_CURRENT_FUNCTION, __LINE__);
    return effect->settings->Clone();
}

EffectList Adjustments::MakeEffects(const Choice& isChosen) const
{
    EffectList effects;
    for (const Effect& effect : m_effects)
        if (isChosen(m_descriptions[effect.description].effectID))
            effects.push_back(effect.settings->Clone());
    return effects;
}

Property::Ptr Adjustments::Save() const
{
    const auto saved = std::make_shared<Property>(std::string());
    const EffectList effects =
        MakeEffects([this](const std::string& effectID) { return !IsDefault(effectID); });
    if (effects.empty())
        return saved;
    const auto list =
        SerializerProperty::Create(saved, Place)->CreateCollection(IEffectSettings::EFFECTS);
    for (const EffectPtr& effect : effects)
        list->AddElement()->WriteObject(IEffectSettings::EFFECT, *effect);
    return saved;
}

/// Reads into a new effect, so that one that cannot be read leaves nothing behind. Numbers out of
/// their range are drawn as its ends, which they become.
void Adjustments::LoadEffect(const Zorvik::Brassel::ConstSerializerPtr& element)
{
    const auto node = element->GetNode(IEffectSettings::EFFECT);
    const EffectPtr read = IEffectSettings::CreateEffectSettings(node);
    const std::string effectID = read->GetEffectID();
    const Effect* const effect = FindEffect(effectID);
    if (!effect)
        Fail(tr("“%1” is no effect of this editor; it is left out.")
                 .arg(QString::fromStdString(effectID))
                 .toStdString(),
             BOOST_CURRENT_FUNCTION, __LINE__);
    if (!IsDefault(effectID))
        Fail(tr("The effect “%1” is there twice; the second one is left out.")
                 .arg(m_descriptions[effect->description].title)
                 .toStdString(),
             BOOST_CURRENT_FUNCTION, __LINE__);
    element->ReadObject(IEffectSettings::EFFECT, *read);
    for (const ParameterDescription& one : m_descriptions[effect->description].parameters)
        read->SetParameter(one.name,
                           std::clamp(read->GetParameter(one.name), one.minimum, one.maximum));
    m_effects[static_cast<std::size_t>(effect - m_effects.data())].settings = read;
}

QStringList Adjustments::Load(const Property::Ptr& saved)
{
    Reset();
    QStringList reports;
    Try(reports, [&] {
        const auto list =
            SerializerProperty::Create(saved, Place)->GetCollection(IEffectSettings::EFFECTS);
        for (std::size_t i = 0; list && i < list->GetCount(); ++i)
            Try(reports, [&] { LoadEffect(list->GetElement(i)); });
    });
    return reports;
}

} // namespace LumetraAdjust
