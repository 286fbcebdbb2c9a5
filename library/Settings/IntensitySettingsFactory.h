// SPDX-License-Identifier: MIT
#pragma once

#include "Settings/IIntensitySettingsFactory.h"

namespace Zorvik::Lumetra::LumetraPresets {

/// Reads the integer "type" (see IntensitySettingType) and, beside it, the setting's own stored
/// form under its class id. Where nothing is stored there, the setting stays as it was constructed.
/// A null node, a missing type and an unknown one give the setting of a preset without intensity.
class LUMETRAPRESETSUTIL_EXPORT IntensitySettingsFactory : public virtual IIntensitySettingsFactory
{
public:
    IntensitySettingsFactory();
    IntensitySettingsFactory(const IntensitySettingsFactory& other);
    IntensitySettingsFactory& operator=(const IntensitySettingsFactory& other);
    ~IntensitySettingsFactory() override;

    /// Makes the setting; a slider is strict. Throws std::invalid_argument for a slider that drives
    /// an unknown parameter, and the serializer's Exception for a value of the wrong kind.
    std::unique_ptr<IIntensitySetting>
    Create(const Brassel::ConstSerializerPtr& serializer) override;
};

} // namespace Zorvik::Lumetra::LumetraPresets
