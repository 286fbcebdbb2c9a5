// SPDX-License-Identifier: MIT
#include "Settings/BlendingSetting.h"

#include "Settings/NodeOrEmpty.h"
#include "Settings/SettingKeys.h"
#include "Zorvik/Quindle/EffectsSettings.h"

namespace Zorvik::Lumetra::LumetraPresets {
namespace {

IntToIntMapping MakeMapping(const std::pair<int, int>& slider, const std::pair<int, int>& core)
{
    return IntToIntMapping(slider.first, slider.second, core.second, core.first);
}

} // namespace

BlendingSetting::BlendingSetting(const std::pair<int, int>& core, const std::pair<int, int>& slider)
    : coreRange(core), sliderRange(slider), mapping(MakeMapping(slider, core)), m_value(core.second)
{
}

BlendingSetting::BlendingSetting(const BlendingSetting&) = default;
BlendingSetting::BlendingSetting(BlendingSetting&&) noexcept = default;
BlendingSetting& BlendingSetting::operator=(const BlendingSetting&) = default;
BlendingSetting& BlendingSetting::operator=(BlendingSetting&&) noexcept = default;
BlendingSetting::~BlendingSetting() = default;

int BlendingSetting::ValueToCore() const
{
    return mapping.GetForward(m_value);
}

void BlendingSetting::SetValueFromCore(int core)
{
    m_value = mapping.GetBackward(core);
}

std::unique_ptr<IIntensitySetting> BlendingSetting::Clone() const
{
    return std::make_unique<BlendingSetting>(*this);
}

IntensitySettingType BlendingSetting::GetType() const
{
    return IntensitySettingType::Blending;
}

int BlendingSetting::Min() const
{
    return sliderRange.first;
}

int BlendingSetting::Max() const
{
    return sliderRange.second;
}

int BlendingSetting::Value() const
{
    return m_value;
}

void BlendingSetting::SetValue(int value)
{
    m_value = value;
}

void BlendingSetting::LoadValue(const Quindle::EffectsSettings& package)
{
    SetValueFromCore(package.GetBlendAmount());
}

void BlendingSetting::SaveValue(Quindle::EffectsSettings& package) const
{
    package.SetBlendAmount(ValueToCore());
}

const std::string& BlendingSetting::GetClassId() const
{
    static const std::string classId = SettingKeys::BlendSetting;
    return classId;
}

void BlendingSetting::Serialize(const Brassel::SerializerPtr& node) const
{
    node->Set(SettingKeys::BlendValue, m_value);
    node->Set(SettingKeys::BlendBegin, coreRange.first);
    node->Set(SettingKeys::BlendEnd, coreRange.second);
}

void BlendingSetting::Deserialize(const Brassel::ConstSerializerPtr& node)
{
    const auto source = NodeOrEmpty(node);
    m_value = source->Get(SettingKeys::BlendValue, m_value);
    coreRange.first = source->Get(SettingKeys::BlendBegin, coreRange.first);
    coreRange.second = source->Get(SettingKeys::BlendEnd, coreRange.second);
    mapping = MakeMapping(sliderRange, coreRange);
}

} // namespace Zorvik::Lumetra::LumetraPresets
