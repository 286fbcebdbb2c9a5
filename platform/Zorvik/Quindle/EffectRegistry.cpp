// SPDX-License-Identifier: MIT
#include "Zorvik/Quindle/EffectRegistry.h"

#include "Zorvik/Exception.h"

#include <boost/current_function.hpp>

#include <cmath>
#include <map>
#include <set>

namespace Zorvik::Quindle {
namespace {

using DescriptorMap = std::map<std::string, std::shared_ptr<const EffectDescriptor>>;

DescriptorMap& Descriptors()
{
    static DescriptorMap descriptors;
    return descriptors;
}

[[noreturn]] void Refuse(const EffectDescriptor& descriptor, const std::string& reason)
{
    throw Exception("effect \"" + descriptor.effectID + "\": " + reason, BOOST_CURRENT_FUNCTION,
                    "Zorvik/Quindle/EffectRegistry", __LINE__);
}

void Check(const EffectDescriptor& descriptor, const EffectParameter& parameter)
{
    const std::string name = "parameter \"" + parameter.name + "\"";
    if (parameter.name.empty() || parameter.name == IEffectSettings::KEY_EFFECT_ID)
        Refuse(descriptor, name + ": expected a name other than \"\" and \"id\"");
    if (!std::isfinite(parameter.minimum) || !std::isfinite(parameter.maximum) ||
        !std::isfinite(parameter.defaultValue))
        Refuse(descriptor, name + ": expected finite numbers");
    if (parameter.defaultValue < parameter.minimum || parameter.defaultValue > parameter.maximum)
        Refuse(descriptor, name + ": expected a default inside its range");
}

} // namespace

void EffectRegistry::Register(const EffectDescriptor& descriptor)
{
    if (descriptor.effectID.empty())
        Refuse(descriptor, "expected an id");
    std::set<std::string> names;
    for (const EffectParameter& parameter : descriptor.parameters) {
        Check(descriptor, parameter);
        if (!names.insert(parameter.name).second)
            Refuse(descriptor, "parameter \"" + parameter.name + "\": expected once");
    }
    Descriptors()[descriptor.effectID] = std::make_shared<const EffectDescriptor>(descriptor);
}

void EffectRegistry::Unregister(const std::string& effectID)
{
    Descriptors().erase(effectID);
}

std::shared_ptr<const EffectDescriptor> EffectRegistry::Find(const std::string& effectID)
{
    const auto found = Descriptors().find(effectID);
    return found == Descriptors().end() ? nullptr : found->second;
}

std::vector<std::string> EffectRegistry::GetEffectIDs()
{
    std::vector<std::string> ids;
    for (const auto& entry : Descriptors())
        ids.push_back(entry.first);
    return ids;
}

} // namespace Zorvik::Quindle
