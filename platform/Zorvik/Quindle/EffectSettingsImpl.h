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

/// The plain effect has an identifier and numbers. Whatever else it finds in its stored form it
/// keeps and writes back, so that a preset which uses an effect of a missing plug-in survives a
/// round trip. An effect that was not registered when it was made takes every stored number for a
/// parameter.
class ZORVIKPLATFORM_EXPORT EffectSettingsImpl : public RefCounted<IEffectSettings>
{
public:
    /// Makes the effect that changes nothing, with the id "empty" and no parameters. Applying it
    /// through IQuindleDrawer::ApplyEffect() commits what is shown.
    static EffectPtr Create(const Proc::SettingsEffectEmpty& settings);
    /// Makes an effect with its registered parameters at their defaults. An unknown id gives an
    /// effect without parameters.
    static EffectPtr Create(const std::string& effectID);

    /// These are the operations of IEffectSettings. Clone() copies the kept extra values too.
    /// Deserialize() does nothing for a null node; a known parameter that is no finite number there
    /// is an Exception that names the place.
    const std::string& GetEffectID() const override;
    EffectPtr Clone() const override;
    bool HasParameter(const std::string& name) const override;
    double GetParameter(const std::string& name) const override;
    void SetParameter(const std::string& name, double value) override;
    void Serialize(const Brassel::SerializerPtr& node) const override;
    void Deserialize(const Brassel::ConstSerializerPtr& node) override;

protected:
    /// Looks `effectID` up in the EffectRegistry once, here; later changes there are not seen.
    explicit EffectSettingsImpl(const std::string& effectID);
    EffectSettingsImpl(const EffectSettingsImpl& other);
    ~EffectSettingsImpl() override;

private:
    double* FindParameter(const std::string& name);
    Brassel::SerializerPtr Extras();

    std::string m_effectID;
    bool m_isRegistered;
    std::vector<std::pair<std::string, double>> m_parameters;
    Core::Property::Ptr m_extras; // It is null until there are some, which few effects have.
};

} // namespace Zorvik::Quindle
