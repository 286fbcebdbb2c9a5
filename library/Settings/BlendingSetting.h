// SPDX-License-Identifier: MIT
#pragma once

#include "Settings/IIntensitySetting.h"
#include "Zorvik/Lumetra/IntToIntMapping.h"

#include <utility>

namespace Zorvik::Lumetra::LumetraPresets {

/// This intensity blends the preset's result with the source: the slider position becomes the
/// drawer's blend amount. The lowest position maps to the core range's second value, the highest to
/// its first: the higher the position, the less is left of the source.
class LUMETRAPRESETSUTIL_EXPORT BlendingSetting : public virtual IIntensitySetting
{
public:
    /// `core` holds blend amounts, `slider` is Min() and Max(). The value starts as `core.second`,
    /// which need not be a slider position, and stays so until one is read or set. For presets the
    /// factory passes (1, 255) and (1, 100), so a fresh value is 255 and counts as 100.
    BlendingSetting(const std::pair<int, int>& core, const std::pair<int, int>& slider);
    BlendingSetting(const BlendingSetting& other);
    BlendingSetting(BlendingSetting&& other) noexcept;
    BlendingSetting& operator=(const BlendingSetting& other);
    BlendingSetting& operator=(BlendingSetting&& other) noexcept;
    ~BlendingSetting() override;

    /// Returns the blend amount of the current value. A value outside the slider range counts as
    /// its nearest end.
    int ValueToCore() const;
    /// Sets the value to the slider position of a blend amount. An amount outside the core range
    /// counts as its nearest end.
    void SetValueFromCore(int core);

    /// These are the operations of IIntensitySetting, of type Blending. LoadValue() and SaveValue()
    /// read and write the package's blend amount, by SetValueFromCore() and ValueToCore(). None
    /// throws.
    std::unique_ptr<IIntensitySetting> Clone() const override;
    IntensitySettingType GetType() const override;
    int Min() const override;
    int Max() const override;
    int Value() const override;
    void SetValue(int value) override;
    void LoadValue(const Quindle::EffectsSettings& package) override;
    void SaveValue(Quindle::EffectsSettings& package) const override;

    /// Returns "blendSetting".
    const std::string& GetClassId() const override;
    /// Writes the value and the core range. The slider range is never stored.
    void Serialize(const Brassel::SerializerPtr& node) const override;
    /// Reads the value and the core range; missing keys keep the current values, and so does a null
    /// node. A value outside the slider range is taken as it stands. A key that holds no whole
    /// number is the serializer's Exception.
    void Deserialize(const Brassel::ConstSerializerPtr& node) override;

private:
    std::pair<int, int> coreRange;
    std::pair<int, int> sliderRange;
    IntToIntMapping mapping; // It maps slider positions to blend amounts and runs downwards.
    int m_value;
};

} // namespace Zorvik::Lumetra::LumetraPresets
