// SPDX-License-Identifier: MIT
#include "support/RecordingEffect.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Exception.h"

#include <boost/current_function.hpp>

#include <algorithm>
#include <cmath>

namespace LumetraTest {

using namespace Zorvik;

RecordingEffect::RecordingEffect(CallLog& log, const Quindle::EffectDescriptor& descriptor)
    : m_log(log), m_effectID(descriptor.effectID)
{
    for (const Quindle::EffectParameter& parameter : descriptor.parameters)
        m_parameters.emplace_back(parameter.name, parameter.defaultValue);
}

RecordingEffect::RecordingEffect(const RecordingEffect& other)
    : IRefCountable(), ISerializable(), RefCounted<IEffectSettings>(), m_log(other.m_log),
      m_effectID(other.m_effectID), m_parameters(other.m_parameters)
{
}

Quindle::EffectPtr RecordingEffect::Create(CallLog& log,
                                           const Quindle::EffectDescriptor& descriptor)
{
    return new RecordingEffect(log, descriptor);
}

std::string RecordingEffect::GetText() const
{
    std::vector<std::string> texts;
    for (const auto& [name, value] : m_parameters)
        texts.push_back(name + ": " + CallText(value));
    return m_effectID + "{" + JoinTexts(texts) + "}";
}

const std::string& RecordingEffect::GetEffectID() const
{
    return m_effectID;
}

Quindle::EffectPtr RecordingEffect::Clone() const
{
    m_log.Call(Self() + ".Clone");
    return new RecordingEffect(*this);
}

bool RecordingEffect::HasParameter(const std::string& name) const
{
    return Position(name) < m_parameters.size();
}

std::size_t RecordingEffect::Position(const std::string& name) const
{
    const auto found = std::find_if(m_parameters.begin(), m_parameters.end(),
                                    [&name](const auto& p) { return p.first == name; });
    return static_cast<std::size_t>(found - m_parameters.begin());
}

double RecordingEffect::GetParameter(const std::string& name) const
{
    m_log.Call(Self() + ".GetParameter", name);
    if (!HasParameter(name))
        throw Exception("effect \"" + m_effectID + "\" has no parameter \"" + name + "\"",
                        BOOST_CURRENT_FUNCTION, "support/RecordingEffect", __LINE__);
    return m_parameters[Position(name)].second;
}

void RecordingEffect::SetParameter(const std::string& name, double value)
{
    m_log.Call(Self() + ".SetParameter", name, value);
    if (!HasParameter(name))
        throw Exception("effect \"" + m_effectID + "\" has no parameter \"" + name + "\"",
                        BOOST_CURRENT_FUNCTION, "support/RecordingEffect", __LINE__);
    if (std::isfinite(value))
        m_parameters[Position(name)].second = value;
}

void RecordingEffect::Serialize(const Brassel::SerializerPtr& node) const
{
    m_log.Call(Self() + ".Serialize");
    node->Set(KEY_EFFECT_ID, m_effectID);
    for (const auto& [name, value] : m_parameters)
        node->Set(name, value);
}

void RecordingEffect::Deserialize(const Brassel::ConstSerializerPtr& node)
{
    m_log.Call(Self() + ".Deserialize");
    if (!node)
        return;
    for (auto& [name, value] : m_parameters)
        value = node->Get(name, value);
}

} // namespace LumetraTest
