// SPDX-License-Identifier: MIT
#pragma once

#include "Settings/IIntensitySetting.h"

namespace Zorvik::Lumetra::LumetraPresets {

/// The intensity of a preset that has none: all values are 0, nothing is stored.
class IntensitySettingEmpty : public virtual IIntensitySetting
{
public:
    std::unique_ptr<IIntensitySetting> Clone() const override;
    IntensitySettingType GetType() const override;
    int Min() const override;
    int Max() const override;
    int Value() const override;
    void SetValue(int value) override;
    void LoadValue(const Quindle::EffectsSettings& package) override;
    void SaveValue(Quindle::EffectsSettings& package) const override;

    const std::string& GetClassId() const override;
    void Serialize(const Brassel::SerializerPtr& node) const override;
    void Deserialize(const Brassel::ConstSerializerPtr& node) override;
};

} // namespace Zorvik::Lumetra::LumetraPresets
