// SPDX-License-Identifier: MIT
#pragma once

#include "LumetraPresetsUtilExport.h"
#include "Settings/IIntensitySetting.h"

#include <memory>

namespace Zorvik::Lumetra::LumetraPresets {

/// Makes a preset's intensity setting from its stored form.
class LUMETRAPRESETSUTIL_EXPORT IIntensitySettingsFactory
{
public:
    virtual ~IIntensitySettingsFactory();

    /// Never null; `serializer` may be.
    virtual std::unique_ptr<IIntensitySetting>
    Create(const Brassel::ConstSerializerPtr& serializer) = 0;

    IIntensitySettingsFactory();
    IIntensitySettingsFactory(const IIntensitySettingsFactory& other);
    IIntensitySettingsFactory& operator=(const IIntensitySettingsFactory& other);
};

} // namespace Zorvik::Lumetra::LumetraPresets
