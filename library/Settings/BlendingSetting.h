// SPDX-License-Identifier: MIT
#pragma once

#include "Settings/IIntensitySetting.h"
#include "Zorvik/Lumetra/IntToIntMapping.h"

#include <utility>

namespace Zorvik::Lumetra::LumetraPresets {

/// An intensity that blends the preset's result with the source: the slider position becomes the
/// drawer's blend amount. The highest position maps to the core range's first value.
class LUMETRAPRESETSUTIL_EXPORT BlendingSetting : public virtual IIntensitySetting
{
public:
    /// `coreRange`: blend amounts; `sliderRange`: Min() and Max(). The value starts as
    /// `coreRange.second`, which need not be a slider position, until one is read or set.
    BlendingSetting(const std::pair<int, int>& core, const std::pair<int, int>& slider);
    BlendingSetting(const BlendingSetting& other);
    BlendingSetting(BlendingSetting&& other) noexcept;
    BlendingSetting& operator=(const BlendingSetting& other);
    BlendingSetting& operator=(BlendingSetting&& other) noexcept;
    ~BlendingSetting() override;

    /// The blend amount of the current value.
    int ValueToCore() const;
    void SetValueFromCore(int core);

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
    /// Missing keys keep the current values. The slider range is never stored.
    void Deserialize(const Brassel::ConstSerializerPtr& node) override;

private:
    std::pair<int, int> coreRange;
    std::pair<int, int> sliderRange;
    IntToIntMapping mapping; // slider position to blend amount, core range from second to first
    int m_value;
};

} // namespace Zorvik::Lumetra::LumetraPresets
