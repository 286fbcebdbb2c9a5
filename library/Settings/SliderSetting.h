// SPDX-License-Identifier: MIT
#pragma once

#include "Settings/IIntensitySetting.h"
#include "Zorvik/Quindle/IEffectSettings.h"

#include <set>
#include <string>
#include <vector>

namespace Zorvik::Lumetra::LumetraPresets {

/// An integer slider drives one or more effect parameters linearly: slider position "begin" maps to
/// each variable's begin, "end" to its end. It serves as a preset's intensity, which is strict, so
/// a missing effect is an error, or as one of a preset's extra sliders, which is not, so a missing
/// effect is skipped.
///
/// Errors are `std::invalid_argument` with the origin attached (boost::throw_function, _file,
/// _line). Their text is one line that names effect and parameter, then a call stack. The ranges
/// are not checked: equal ends give infinity or NaN, which SaveValue() passes on to the effect and
/// LoadValue() turns into an end of int's range or 0.
class LUMETRAPRESETSUTIL_EXPORT SliderSetting : public virtual IIntensitySetting
{
public:
    using List = std::vector<SliderSetting>;

    /// Names one parameter that the slider drives, with its range in the parameter's own unit.
    struct SliderVariable
    {
        std::string effectID; ///< The identifier of the effect that has the parameter.
        std::string setting;  ///< The name of the parameter.
        double begin = 0;     ///< The parameter's value at the slider's begin.
        double end = 0;       ///< The parameter's value at the slider's end.
    };

    /// Makes a slider without variables, from 0 to 0 and at 0. `isStrict` is never stored; a copy
    /// keeps it.
    explicit SliderSetting(bool isStrict);
    SliderSetting(const SliderSetting& other);
    SliderSetting(SliderSetting&& other) noexcept;
    SliderSetting& operator=(const SliderSetting& other);
    SliderSetting& operator=(SliderSetting&& other) noexcept;
    ~SliderSetting() override;

    /// Returns the setting's own name, which is the name of the node that it was read from. It is
    /// also the effect of variables that name none.
    std::string EffectID() const;
    /// Returns the text for the user, in UTF-8, as the catalogue has it; it may be empty.
    std::string Title() const;
    /// Returns the effects that the variables drive, in ascending order.
    std::set<std::string> GetEffectIDs() const;

    /// Positions the slider from the first variable alone, rounded half away from zero, and returns
    /// true. Returns false, with nothing changed, without variables, or when the effect is missing
    /// and this is not strict. A strict slider throws for a missing effect. An effect that is there
    /// without the parameter is its own Exception.
    bool LoadValue(const Quindle::ConstEffectList& effects);
    bool LoadValue(const Quindle::EffectList& effects);
    /// Writes the value, unrounded, into the parameter of every variable; the effects change in
    /// place. Returns whether the *last* variable's effect was there, and true without variables. A
    /// strict slider throws at the first missing effect; the variables before it are then written.
    bool SaveValue(Quindle::EffectList& effects) const;

    /// True for equal names, ranges, values and variables in equal order. Title and strictness do
    /// not count.
    bool operator==(const SliderSetting& other) const;

    /// These are the operations of IIntensitySetting, of type Slider. Min() and Max() are the
    /// stored ends truncated towards zero. LoadValue() and SaveValue() call the forms above and
    /// drop their results.
    std::unique_ptr<IIntensitySetting> Clone() const override;
    IntensitySettingType GetType() const override;
    int Min() const override;
    int Max() const override;
    int Value() const override;
    void SetValue(int value) override;
    void LoadValue(const Quindle::EffectsSettings& package) override;
    void SaveValue(Quindle::EffectsSettings& package) const override;

    /// Returns "sliderSetting".
    const std::string& GetClassId() const override;
    /// Writes title, range and variables. Name and value are not stored: the name is that of the
    /// node, and the value comes back from the effects.
    void Serialize(const Brassel::SerializerPtr& node) const override;
    /// Reads name, title, range and variables; missing keys give empty texts and 0. The variables
    /// are appended, so reading twice has them twice. Throws, strict or not, for a parameter that
    /// the EffectRegistry does not know; what was read before it stays. A value of the wrong kind
    /// is the serializer's Exception.
    void Deserialize(const Brassel::ConstSerializerPtr& node) override;

private:
    double ToParameter(const SliderVariable& variable) const;
    int ToPosition(const SliderVariable& variable, double parameter) const;
    SliderVariable ReadVariable(const Brassel::ISerializer& node) const;

    std::vector<SliderVariable> variables;
    double m_min = 0;
    double m_max = 0;
    std::string m_effectID;
    std::string m_title;
    int m_value = 0;
    bool strict;
};

} // namespace Zorvik::Lumetra::LumetraPresets

Q_DECLARE_METATYPE(Zorvik::Lumetra::LumetraPresets::SliderSetting::List)
