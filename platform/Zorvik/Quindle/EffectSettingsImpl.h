// SPDX-License-Identifier: MIT
#pragma once

#include "Zorvik/Core/Property.h"
#include "Zorvik/Proc/SettingsEffectEmpty.h"
#include "Zorvik/Quindle/IEffectSettings.h"
#include "Zorvik/RefCounted.h"

#include <string>
#include <utility>
#include <vector>

namespace Zorvik::Quindle {

/// The plain effect: an identifier and numbers. Whatever else it finds in its stored form it keeps
/// and writes back, so that a preset which uses an effect of a missing plug-in survives a round
/// trip. Of an effect that is not registered, every stored number is a parameter.
class ZORVIKPLATFORM_EXPORT EffectSettingsImpl : public RefCounted<IEffectSettings>
{
public:
    /// The effect that changes nothing: id "empty", no parameters.
    static EffectPtr Create(const Proc::SettingsEffectEmpty& settings);
    /// An effect with its registered parameters at their defaults; none for an unknown id.
    static EffectPtr Create(const std::string& effectID);

    const std::string& GetEffectID() const override;
    EffectPtr Clone() const override;
    bool HasParameter(const std::string& name) const override;
    double GetParameter(const std::string& name) const override;
    void SetParameter(const std::string& name, double value) override;
    void Serialize(const Brassel::SerializerPtr& node) const override;
    void Deserialize(const Brassel::ConstSerializerPtr& node) override;

protected:
    explicit EffectSettingsImpl(const std::string& effectID);
    EffectSettingsImpl(const EffectSettingsImpl& other);
    ~EffectSettingsImpl() override;

private:
    double* FindParameter(const std::string& name);
    Brassel::SerializerPtr Extras();

    std::string m_effectID;
    bool m_isRegistered;
    std::vector<std::pair<std::string, double>> m_parameters;
    Core::Property::Ptr m_extras; // null until there are some: few effects have any
};

} // namespace Zorvik::Quindle
