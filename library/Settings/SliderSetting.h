// SPDX-License-Identifier: MIT
#pragma once

#include "Settings/IIntensitySetting.h"
#include "Zorvik/Quindle/IEffectSettings.h"

#include <set>
#include <string>
#include <vector>

namespace Zorvik::Lumetra::LumetraPresets {

/// One integer slider that drives one or more effect parameters linearly: slider position "begin"
/// maps to each variable's begin, "end" to its end. It is a preset's intensity (strict: a missing
/// effect is an error) or one of its extra sliders (not strict: a missing effect is skipped).
///
/// Errors are `std::invalid_argument` with the origin attached (boost::throw_function, _file,
/// _line). The ranges are not checked: equal ends give infinity or NaN, passed on as they are.
class LUMETRAPRESETSUTIL_EXPORT SliderSetting : public virtual IIntensitySetting
{
public:
    using List = std::vector<SliderSetting>;

    /// One driven parameter.
    struct SliderVariable
    {
        std::string effectID;
        std::string setting; ///< the parameter's name
        double begin = 0;    ///< parameter value at the slider's begin
        double end = 0;      ///< parameter value at the slider's end
    };

    explicit SliderSetting(bool isStrict);
    SliderSetting(const SliderSetting& other);
    SliderSetting(SliderSetting&& other) noexcept;
    SliderSetting& operator=(const SliderSetting& other);
    SliderSetting& operator=(SliderSetting&& other) noexcept;
    ~SliderSetting() override;

    /// The setting's own name, which is also the effect of variables that name none.
    std::string EffectID() const;
    std::string Title() const;
    /// The effects that the variables drive, in ascending order.
    std::set<std::string> GetEffectIDs() const;

    /// Positions the slider from the first variable, rounded half away from zero. False, and
    /// nothing changed, when its effect is missing and this is not strict, or without variables.
    bool LoadValue(const Quindle::ConstEffectList& effects);
    bool LoadValue(const Quindle::EffectList& effects);
    /// Writes every variable, unrounded. Returns whether the *last* variable's effect was there;
    /// true without variables.
    bool SaveValue(Quindle::EffectList& effects) const;

    /// Title and strictness do not count.
    bool operator==(const SliderSetting& other) const;

    std::unique_ptr<IIntensitySetting> Clone() const override;
    IntensitySettingType GetType() const override;
    int Min() const override;
    int Max() const override;
    int Value() const override;
    void SetValue(int value) override;
    void LoadValue(const Quindle::EffectsSettings& package) override;
    void SaveValue(Quindle::EffectsSettings& package) const override;

    const std::string& GetClassId() const override;
    /// The value is not stored; it comes back from the effects.
    void Serialize(const Brassel::SerializerPtr& node) const override;
    /// Reading twice appends the variables twice. Throws for a parameter that does not exist.
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
