// SPDX-License-Identifier: MIT
#pragma once

#include "Zorvik/Brassel/ISerializable.h"
#include "Zorvik/IRefCountable.h"

#include <string>
#include <vector>

namespace Zorvik::Quindle {

class IEffectSettings;
using EffectPtr = boost::intrusive_ptr<IEffectSettings>;
using ConstEffectPtr = boost::intrusive_ptr<const IEffectSettings>;
using EffectList = std::vector<EffectPtr>;
using ConstEffectList = std::vector<ConstEffectPtr>;

/// One image effect: an identifier and named numbers. Stored as "id" and, beside it, each
/// parameter by its name. An effect that needs more than numbers is a class of the host.
class ZORVIKPLATFORM_EXPORT IEffectSettings : public virtual IRefCountable,
                                              public virtual Brassel::ISerializable
{
public:
    /// The list of a preset's effects; each element holds its effect under EFFECT.
    static constexpr char EFFECTS[] = "effects";
    static constexpr char EFFECT[] = "effect";
    static constexpr char KEY_EFFECT_ID[] = "id";

    virtual const std::string& GetEffectID() const = 0;
    /// A deep copy.
    virtual EffectPtr Clone() const = 0;
    virtual bool HasParameter(const std::string& name) const = 0;
    /// Exception for a name that the effect does not have.
    virtual double GetParameter(const std::string& name) const = 0;
    /// Takes finite values as they are, without clamping, and ignores others. Exception for a name
    /// that the effect does not have.
    virtual void SetParameter(const std::string& name, double value) = 0;

    /// A new effect of the kind that `effectNode` names, at its defaults; the caller lets it read
    /// itself. Never null: an unknown id or a null node gives a plain effect that keeps whatever
    /// it reads.
    static EffectPtr CreateEffectSettings(const Brassel::ConstSerializerPtr& effectNode);

    /// The first effect with that identifier, or null.
    static EffectPtr Find(const EffectList& effects, const std::string& effectID);
    static ConstEffectPtr Find(const ConstEffectList& effects, const std::string& effectID);

protected:
    ~IEffectSettings() override;
};

} // namespace Zorvik::Quindle
