// SPDX-License-Identifier: MIT
#pragma once

#include "Settings/IIntensitySetting.h"

namespace Zorvik::Lumetra::LumetraPresets {

/// Stands for the intensity of a preset that has none: all values are 0, nothing is changed or
/// stored, and no operation throws.
class IntensitySettingEmpty : public virtual IIntensitySetting
{
public:
    /// These are the operations of IIntensitySetting, of type None. SetValue(), LoadValue() and
    /// SaveValue() do nothing.
    std::unique_ptr<IIntensitySetting> Clone() const override;
    IntensitySettingType GetType() const override;
    int Min() const override;
    int Max() const override;
    int Value() const override;
    void SetValue(int value) override;
    void LoadValue(const Quindle::EffectsSettings& package) override;
    void SaveValue(Quindle::EffectsSettings& package) const override;

    /// These are the operations of ISerializable. The class id is "intensityNone"; the other two do
    /// nothing and accept null.
    const std::string& GetClassId() const override;
    void Serialize(const Brassel::SerializerPtr& node) const override;
    void Deserialize(const Brassel::ConstSerializerPtr& node) override;
};

} // namespace Zorvik::Lumetra::LumetraPresets
