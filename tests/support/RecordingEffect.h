// SPDX-License-Identifier: MIT
#pragma once

#include "support/CallLog.h"

#include "Zorvik/Quindle/EffectRegistry.h"
#include "Zorvik/Quindle/IEffectSettings.h"
#include "Zorvik/RefCounted.h"

#include <string>
#include <utility>
#include <vector>

namespace LumetraTest {

/// A host's own class of effect: the registered numbers, of which it records every read and write
/// ("effect(tone).SetParameter("gain", 0.5)"). Keeps nothing else of its stored form.
class RecordingEffect : public Zorvik::RefCounted<Zorvik::Quindle::IEffectSettings>
{
public:
    static Zorvik::Quindle::EffectPtr Create(CallLog& log,
                                             const Zorvik::Quindle::EffectDescriptor& descriptor);

    /// "tone{gain: 0.5, bias: 0}", unrecorded.
    std::string GetText() const;

    const std::string& GetEffectID() const override;
    Zorvik::Quindle::EffectPtr Clone() const override;
    bool HasParameter(const std::string& name) const override;
    double GetParameter(const std::string& name) const override;
    void SetParameter(const std::string& name, double value) override;
    void Serialize(const Zorvik::Brassel::SerializerPtr& node) const override;
    void Deserialize(const Zorvik::Brassel::ConstSerializerPtr& node) override;

private:
    RecordingEffect(CallLog& log, const Zorvik::Quindle::EffectDescriptor& descriptor);
    RecordingEffect(const RecordingEffect& other);

    std::size_t Position(const std::string& name) const;
    std::string Self() const { return "effect(" + m_effectID + ")"; }

    CallLog& m_log;
    std::string m_effectID;
    std::vector<std::pair<std::string, double>> m_parameters;
};

} // namespace LumetraTest
