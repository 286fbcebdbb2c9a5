// SPDX-License-Identifier: MIT
#include "support/RegisteredEffects.h"

#include "support/RecordingEffect.h"

namespace LumetraTest {

using namespace Zorvik::Quindle;

RegisteredEffects::RegisteredEffects(CallLog& log) : m_log(log)
{
    AddRecording("tone", {{"gain", -10, 10, 1, ""}, {"bias", -10, 10, 0, ""}});
    AddRecording("grain", {{"amount", 0, 1, 0, ""}});
    Add({"plain", {{"amount", 0, 1, 0.25, ""}}, {}});
}

RegisteredEffects::~RegisteredEffects()
{
    for (const std::string& id : m_ids)
        EffectRegistry::Unregister(id);
}

void RegisteredEffects::Add(const EffectDescriptor& descriptor)
{
    EffectRegistry::Register(descriptor);
    m_ids.push_back(descriptor.effectID);
}

void RegisteredEffects::AddRecording(const std::string& effectID,
                                     const std::vector<EffectParameter>& parameters)
{
    const EffectDescriptor plain{effectID, parameters, {}};
    Add({effectID, parameters,
         [&log = m_log, plain] { return RecordingEffect::Create(log, plain); }});
}

} // namespace LumetraTest
