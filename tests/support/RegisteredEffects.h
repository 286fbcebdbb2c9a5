// SPDX-License-Identifier: MIT
#pragma once

#include "Zorvik/Quindle/EffectRegistry.h"

#include <string>
#include <vector>

namespace LumetraTest {

class CallLog;

/// Kinds of effect that are registered while it lives: "tone" (gain and bias, -10..10, defaults 1
/// and 0) and "grain" (amount 0..1, default 0), both recording, and "plain" (amount 0..1, default
/// 0.25), which is the platform's own class. A test may add more.
class RegisteredEffects
{
public:
    explicit RegisteredEffects(CallLog& log);
    ~RegisteredEffects();

    RegisteredEffects(const RegisteredEffects&) = delete;
    RegisteredEffects& operator=(const RegisteredEffects&) = delete;

    /// Replaces what is registered under the id until this object ends.
    void Add(const Zorvik::Quindle::EffectDescriptor& descriptor);
    /// Adds an effect that records its calls.
    void AddRecording(const std::string& effectID,
                      const std::vector<Zorvik::Quindle::EffectParameter>& parameters);

private:
    CallLog& m_log;
    std::vector<std::string> m_ids;
};

} // namespace LumetraTest
