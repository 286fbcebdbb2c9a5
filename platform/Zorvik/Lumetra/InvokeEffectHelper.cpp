// SPDX-License-Identifier: MIT
#include "Zorvik/Lumetra/InvokeEffectHelper.h"

#include "Zorvik/Exception.h"
#include "Zorvik/Quindle/EffectRegistry.h"

#include <boost/current_function.hpp>

#include <algorithm>

namespace Zorvik::Lumetra {
namespace {

void RequireEffect(bool isPresent, const std::string& setting)
{
    if (!isPresent)
        throw Exception("parameter \"" + setting + "\": expected an effect, found none",
                        BOOST_CURRENT_FUNCTION, "Zorvik/Lumetra/InvokeEffectHelper", __LINE__);
}

} // namespace

double InvokeEffectHelper::InvokeGet(const std::string& setting,
                                     const Quindle::ConstEffectPtr& effect)
{
    RequireEffect(effect != nullptr, setting);
    return effect->GetParameter(setting);
}

void InvokeEffectHelper::InvokeSet(const std::string& setting, const Quindle::EffectPtr& effect,
                                   double value)
{
    RequireEffect(effect != nullptr, setting);
    effect->SetParameter(setting, value);
}

bool InvokeEffectHelper::MethodExists(const std::string& setting, const std::string& effectID)
{
    const auto descriptor = Quindle::EffectRegistry::Find(effectID);
    if (!descriptor)
        return false;
    const auto& parameters = descriptor->parameters;
    return std::any_of(parameters.begin(), parameters.end(),
                       [&setting](const auto& p) { return p.name == setting; });
}

} // namespace Zorvik::Lumetra
