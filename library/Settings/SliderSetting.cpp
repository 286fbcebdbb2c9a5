// SPDX-License-Identifier: MIT
#include "Settings/SliderSetting.h"

#include "Settings/NodeOrEmpty.h"
#include "Settings/SaturatedInt.h"
#include "Settings/SettingKeys.h"
#include "Zorvik/CallStack.h"
#include "Zorvik/Lumetra/InvokeEffectHelper.h"
#include "Zorvik/Quindle/EffectsSettings.h"

#include <boost/current_function.hpp>
#include <boost/exception/enable_error_info.hpp>
#include <boost/exception/info.hpp>

#include <algorithm>
#include <stdexcept>
#include <tuple>

namespace Zorvik::Lumetra::LumetraPresets {
namespace {

[[noreturn]] void Fail(const SliderSetting::SliderVariable& variable, const char* ending,
                       const char* function, int line)
{
    const std::string message = "Slider Setting(effectID: " + variable.effectID +
                                ", parameter: " + variable.setting + ending;
    // BOOST_THROW_EXCEPTION would record this machine's path of the source.
    throw boost::enable_error_info(std::invalid_argument(message + "\n" + GetCallStack()))
        << boost::throw_function(function) << boost::throw_file("Settings/SliderSetting")
        << boost::throw_line(line);
}

bool AreEqual(const SliderSetting::SliderVariable& a, const SliderSetting::SliderVariable& b)
{
    return std::tie(a.effectID, a.setting, a.begin, a.end) ==
           std::tie(b.effectID, b.setting, b.begin, b.end);
}

} // namespace

SliderSetting::SliderSetting(bool isStrict) : strict(isStrict) {}

SliderSetting::SliderSetting(const SliderSetting&) = default;
SliderSetting::SliderSetting(SliderSetting&&) noexcept = default;
SliderSetting& SliderSetting::operator=(const SliderSetting&) = default;
SliderSetting& SliderSetting::operator=(SliderSetting&&) noexcept = default;
SliderSetting::~SliderSetting() = default;

std::string SliderSetting::EffectID() const
{
    return m_effectID;
}

std::string SliderSetting::Title() const
{
    return m_title;
}

std::set<std::string> SliderSetting::GetEffectIDs() const
{
    std::set<std::string> ids;
    for (const SliderVariable& variable : variables)
        ids.insert(variable.effectID);
    return ids;
}

/// The order of the steps decides the last digit, so the product comes before the quotient: value 3
/// of 0..100 onto 0..0.1 is 0.0030000000000000005.
double SliderSetting::ToParameter(const SliderVariable& variable) const
{
    return (static_cast<double>(m_value) - m_min) * (variable.end - variable.begin) /
               (m_max - m_min) +
           variable.begin;
}

int SliderSetting::ToPosition(const SliderVariable& variable, double parameter) const
{
    const double position =
        (m_max - m_min) * (parameter - variable.begin) / (variable.end - variable.begin) + m_min;
    return SaturatedInt(position >= 0 ? position + 0.5 : position - 0.5);
}

bool SliderSetting::LoadValue(const Quindle::ConstEffectList& effects)
{
    if (variables.empty())
        return false;
    const SliderVariable& variable = variables.front();
    const auto effect = Quindle::IEffectSettings::Find(effects, variable.effectID);
    if (effect)
        m_value = ToPosition(variable, InvokeEffectHelper::InvokeGet(variable.setting, effect));
    else if (strict)
        Fail(variable, ") can't be obtained from effects list!", BOOST_CURRENT_FUNCTION, __LINE__);
    return effect != nullptr;
}

bool SliderSetting::LoadValue(const Quindle::EffectList& effects)
{
    return LoadValue(Quindle::ConstEffectList(effects.begin(), effects.end()));
}

bool SliderSetting::SaveValue(Quindle::EffectList& effects) const
{
    bool isFound = true;
    for (const SliderVariable& variable : variables) {
        const auto effect = Quindle::IEffectSettings::Find(effects, variable.effectID);
        isFound = effect != nullptr;
        if (isFound)
            InvokeEffectHelper::InvokeSet(variable.setting, effect, ToParameter(variable));
        else if (strict)
            Fail(variable, ") can't be set for effects list!", BOOST_CURRENT_FUNCTION, __LINE__);
    }
    return isFound;
}

bool SliderSetting::operator==(const SliderSetting& other) const
{
    return m_effectID == other.m_effectID && m_min == other.m_min && m_max == other.m_max &&
           m_value == other.m_value &&
           std::equal(variables.begin(), variables.end(), other.variables.begin(),
                      other.variables.end(), AreEqual);
}

std::unique_ptr<IIntensitySetting> SliderSetting::Clone() const
{
    return std::make_unique<SliderSetting>(*this);
}

IntensitySettingType SliderSetting::GetType() const
{
    return IntensitySettingType::Slider;
}

int SliderSetting::Min() const
{
    return SaturatedInt(m_min);
}

int SliderSetting::Max() const
{
    return SaturatedInt(m_max);
}

int SliderSetting::Value() const
{
    return m_value;
}

void SliderSetting::SetValue(int value)
{
    m_value = value;
}

void SliderSetting::LoadValue(const Quindle::EffectsSettings& package)
{
    LoadValue(package.EffectsConst());
}

void SliderSetting::SaveValue(Quindle::EffectsSettings& package) const
{
    SaveValue(package.Effects());
}

const std::string& SliderSetting::GetClassId() const
{
    static const std::string classId = SettingKeys::SliderSetting;
    return classId;
}

void SliderSetting::Serialize(const Brassel::SerializerPtr& node) const
{
    node->Set(SettingKeys::SliderTitle, m_title);
    node->Set(SettingKeys::SliderBegin, m_min);
    node->Set(SettingKeys::SliderEnd, m_max);
    const auto collection = node->CreateCollection(SettingKeys::SliderVariables);
    for (const SliderVariable& variable : variables) {
        const auto element = collection->AddElement();
        element->Set(SettingKeys::SliderEffectID, variable.effectID);
        element->Set(SettingKeys::SliderParameter, variable.setting);
        element->Set(SettingKeys::SliderBegin, variable.begin);
        element->Set(SettingKeys::SliderEnd, variable.end);
    }
}

SliderSetting::SliderVariable SliderSetting::ReadVariable(const Brassel::ISerializer& node) const
{
    SliderVariable variable;
    variable.effectID = node.Get(SettingKeys::SliderEffectID, m_effectID);
    variable.setting = node.Get(SettingKeys::SliderParameter, "");
    variable.end = node.Get(SettingKeys::SliderEnd, 0.0);
    variable.begin = node.Get(SettingKeys::SliderBegin, 0.0);
    return variable;
}

void SliderSetting::Deserialize(const Brassel::ConstSerializerPtr& node)
{
    const auto source = NodeOrEmpty(node);
    m_effectID = source->GetName();
    m_title = source->Get(SettingKeys::SliderTitle, "");
    m_max = source->Get(SettingKeys::SliderEnd, 0.0);
    m_min = source->Get(SettingKeys::SliderBegin, 0.0);

    const auto collection = source->GetCollection(SettingKeys::SliderVariables);
    for (std::size_t i = 0; collection && i < collection->GetCount(); ++i) {
        const SliderVariable variable = ReadVariable(*collection->GetElement(i));
        if (!InvokeEffectHelper::MethodExists(variable.setting, variable.effectID))
            Fail(variable, ") is not valid!", BOOST_CURRENT_FUNCTION, __LINE__);
        variables.push_back(variable);
    }
}

} // namespace Zorvik::Lumetra::LumetraPresets
