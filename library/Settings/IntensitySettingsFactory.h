// SPDX-License-Identifier: MIT
#pragma once

#include "Settings/IIntensitySettingsFactory.h"

namespace Zorvik::Lumetra::LumetraPresets {

/// Reads the integer "type" (see IntensitySettingType) and, beside it, the setting's own stored
/// form under its class id. A null node, a missing type and an unknown one give the setting of a
/// preset without intensity. A slider setting that drives an unknown parameter throws.
class LUMETRAPRESETSUTIL_EXPORT IntensitySettingsFactory : public virtual IIntensitySettingsFactory
{
public:
    IntensitySettingsFactory();
    IntensitySettingsFactory(const IntensitySettingsFactory& other);
    IntensitySettingsFactory& operator=(const IntensitySettingsFactory& other);
    ~IntensitySettingsFactory() override;

    std::unique_ptr<IIntensitySetting>
    Create(const Brassel::ConstSerializerPtr& serializer) override;
};

} // namespace Zorvik::Lumetra::LumetraPresets
