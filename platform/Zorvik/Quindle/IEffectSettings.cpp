// SPDX-License-Identifier: MIT
#include "Zorvik/Quindle/IEffectSettings.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Quindle/EffectRegistry.h"
#include "Zorvik/Quindle/EffectSettingsImpl.h"

#include <algorithm>

namespace Zorvik::Quindle {
namespace {

template <class List>
typename List::value_type FindIn(const List& effects, const std::string& effectID)
{
    const auto found = std::find_if(effects.begin(), effects.end(), [&effectID](const auto& e) {
        return e && e->GetEffectID() == effectID;
    });
    return found == effects.end() ? nullptr : *found;
}

} // namespace

IEffectSettings::~IEffectSettings() = default;

EffectPtr IEffectSettings::CreateEffectSettings(const Brassel::ConstSerializerPtr& effectNode)
{
    const std::string effectID = effectNode ? effectNode->Get(KEY_EFFECT_ID, "") : std::string();
    const auto descriptor = EffectRegistry::Find(effectID);
    if (descriptor && descriptor->create)
        if (const EffectPtr effect = descriptor->create())
            return effect;
    return EffectSettingsImpl::Create(effectID);
}

EffectPtr IEffectSettings::Find(const EffectList& effects, const std::string& effectID)
{
    return FindIn(effects, effectID);
}

ConstEffectPtr IEffectSettings::Find(const ConstEffectList& effects, const std::string& effectID)
{
    return FindIn(effects, effectID);
}

} // namespace Zorvik::Quindle
