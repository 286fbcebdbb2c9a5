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

/// One image effect has an identifier and named numbers. Its stored form holds the identifier under
/// "id" and, beside it, each parameter by its name. An effect that needs more than numbers is a
/// class of the host. An effect is shared between lists by pointer, so whoever keeps one that
/// others may change keeps a Clone().
class ZORVIKPLATFORM_EXPORT IEffectSettings : public virtual IRefCountable,
                                              public virtual Brassel::ISerializable
{
public:
    /// The key of a preset's collection of effects; each element holds its effect under EFFECT.
    static constexpr char EFFECTS[] = "effects";
    static constexpr char EFFECT[] = "effect";
    static constexpr char KEY_EFFECT_ID[] = "id";

    /// Names the kind of effect, by which the EffectRegistry knows it and Find() compares. Effects
    /// of one kind in a list share it.
    virtual const std::string& GetEffectID() const = 0;
    /// Makes a deep copy of the same class, never null. A change of either leaves the other alone.
    virtual EffectPtr Clone() const = 0;
    /// True when GetParameter() and SetParameter() know the name.
    virtual bool HasParameter(const std::string& name) const = 0;
    /// Returns the current value in the parameter's own unit. A name that the effect does not have
    /// is an Exception.
    virtual double GetParameter(const std::string& name) const = 0;
    /// Takes finite values as they are, without clamping, and ignores others. A name that the
    /// effect does not have is an Exception.
    virtual void SetParameter(const std::string& name, double value) = 0;

    /// Makes a new effect of the kind that `effectNode` names, with its defaults; the caller then
    /// lets it read itself. The result is never null: an unknown id or a null node gives a plain
    /// effect that keeps whatever it reads. An id that is no text is an Exception.
    static EffectPtr CreateEffectSettings(const Brassel::ConstSerializerPtr& effectNode);

    /// Returns the first effect of the list with that identifier, or null. Null entries are passed
    /// over.
    static EffectPtr Find(const EffectList& effects, const std::string& effectID);
    static ConstEffectPtr Find(const ConstEffectList& effects, const std::string& effectID);

protected:
    ~IEffectSettings() override;
};

} // namespace Zorvik::Quindle
