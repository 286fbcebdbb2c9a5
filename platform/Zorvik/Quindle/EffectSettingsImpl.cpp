// SPDX-License-Identifier: MIT
#include "Zorvik/Quindle/EffectSettingsImpl.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Brassel/NodeCopy.h"
#include "Zorvik/Brassel/SerializerProperty.h"
#include "Zorvik/Exception.h"
#include "Zorvik/Quindle/EffectRegistry.h"

#include <boost/current_function.hpp>

#include <algorithm>
#include <cmath>

namespace Zorvik::Quindle {

using Brassel::ISerializer;
using Brassel::NodeCopy;
using Brassel::SerializerPtr;

EffectSettingsImpl::EffectSettingsImpl(const std::string& effectID)
    : m_effectID(effectID), m_isRegistered(false)
{
    const auto descriptor = EffectRegistry::Find(effectID);
    m_isRegistered = descriptor != nullptr;
    if (!descriptor)
        return;
    m_parameters.reserve(descriptor->parameters.size());
    for (const EffectParameter& parameter : descriptor->parameters)
        m_parameters.emplace_back(parameter.name, parameter.defaultValue);
}

EffectSettingsImpl::EffectSettingsImpl(const EffectSettingsImpl& other)
    : IRefCountable(), ISerializable(), RefCounted<IEffectSettings>(), m_effectID(other.m_effectID),
      m_isRegistered(other.m_isRegistered), m_parameters(other.m_parameters)
{
    if (other.m_extras)
        NodeCopy::CopyAll(*Brassel::SerializerProperty::Create(other.m_extras), *Extras());
}

EffectSettingsImpl::~EffectSettingsImpl() = default;

EffectPtr EffectSettingsImpl::Create(const Proc::SettingsEffectEmpty& /*settings*/)
{
    return new EffectSettingsImpl(Proc::SettingsEffectEmpty::EFFECT_ID);
}

EffectPtr EffectSettingsImpl::Create(const std::string& effectID)
{
    return new EffectSettingsImpl(effectID);
}

const std::string& EffectSettingsImpl::GetEffectID() const
{
    return m_effectID;
}

EffectPtr EffectSettingsImpl::Clone() const
{
    return new EffectSettingsImpl(*this);
}

SerializerPtr EffectSettingsImpl::Extras()
{
    if (!m_extras)
        m_extras = std::make_shared<Core::Property>(std::string());
    return Brassel::SerializerProperty::Create(m_extras);
}

double* EffectSettingsImpl::FindParameter(const std::string& name)
{
    const auto found = std::find_if(m_parameters.begin(), m_parameters.end(),
                                    [&name](const auto& p) { return p.first == name; });
    return found == m_parameters.end() ? nullptr : &found->second;
}

bool EffectSettingsImpl::HasParameter(const std::string& name) const
{
    return const_cast<EffectSettingsImpl*>(this)->FindParameter(name) != nullptr;
}

double EffectSettingsImpl::GetParameter(const std::string& name) const
{
    if (const double* value = const_cast<EffectSettingsImpl*>(this)->FindParameter(name))
        return *value;
    throw Exception("effect \"" + m_effectID + "\" has no parameter \"" + name + "\"",
                    BOOST_CURRENT_FUNCTION, "Zorvik/Quindle/EffectSettingsImpl", __LINE__);
}

void EffectSettingsImpl::SetParameter(const std::string& name, double value)
{
    double* parameter = FindParameter(name);
    if (!parameter)
        throw Exception("effect \"" + m_effectID + "\" has no parameter \"" + name + "\"",
                        BOOST_CURRENT_FUNCTION, "Zorvik/Quindle/EffectSettingsImpl", __LINE__);
    if (std::isfinite(value))
        *parameter = value;
}

void EffectSettingsImpl::Serialize(const Brassel::SerializerPtr& node) const
{
    node->Set(KEY_EFFECT_ID, m_effectID);
    for (const auto& [name, value] : m_parameters)
        node->Set(name, value);
    if (m_extras)
        NodeCopy::CopyAll(*Brassel::SerializerProperty::Create(m_extras), *node);
}

void EffectSettingsImpl::Deserialize(const Brassel::ConstSerializerPtr& node)
{
    if (!node)
        return;
    for (const std::string& key : node->GetKeys()) {
        if (key == KEY_EFFECT_ID)
            continue;
        if (double* parameter = FindParameter(key))
            *parameter = node->Get(key, *parameter);
        else if (!m_isRegistered && node->GetKind(key) == ISerializer::Kind::Number)
            m_parameters.emplace_back(key, node->Get(key, 0.0));
        else
            NodeCopy::CopyEntry(*node, key, *Extras());
    }
    m_effectID = node->Get(KEY_EFFECT_ID, m_effectID);
}

} // namespace Zorvik::Quindle
