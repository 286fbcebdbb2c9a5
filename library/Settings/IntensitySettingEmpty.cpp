// SPDX-License-Identifier: MIT
#include "Settings/IntensitySettingEmpty.h"

#include "Settings/SettingKeys.h"

namespace Zorvik::Lumetra::LumetraPresets {

std::unique_ptr<IIntensitySetting> IntensitySettingEmpty::Clone() const
{
    return std::make_unique<IntensitySettingEmpty>(*this);
}

IntensitySettingType IntensitySettingEmpty::GetType() const
{
    return IntensitySettingType::None;
}

int IntensitySettingEmpty::Min() const
{
    return 0;
}

int IntensitySettingEmpty::Max() const
{
    return 0;
}

int IntensitySettingEmpty::Value() const
{
    return 0;
}

void IntensitySettingEmpty::SetValue(int /*value*/) {}

void IntensitySettingEmpty::LoadValue(const Quindle::EffectsSettings& /*package*/) {}

void IntensitySettingEmpty::SaveValue(Quindle::EffectsSettings& /*package*/) const {}

const std::string& IntensitySettingEmpty::GetClassId() const
{
    static const std::string classId = SettingKeys::IntensityNone;
    return classId;
}

void IntensitySettingEmpty::Serialize(const Brassel::SerializerPtr& /*node*/) const {}

void IntensitySettingEmpty::Deserialize(const Brassel::ConstSerializerPtr& /*node*/) {}

} // namespace Zorvik::Lumetra::LumetraPresets
