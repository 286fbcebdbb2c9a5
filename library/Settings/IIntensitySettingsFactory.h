// SPDX-License-Identifier: MIT
#pragma once

#include "LumetraPresetsUtilExport.h"
#include "Settings/IIntensitySetting.h"

#include <memory>

namespace Zorvik::Lumetra::LumetraPresets {

/// Makes a preset's intensity setting from its stored form. A preset calls it when it is filled.
class LUMETRAPRESETSUTIL_EXPORT IIntensitySettingsFactory
{
public:
    virtual ~IIntensitySettingsFactory();

    /// Makes a new setting from `serializer`, the preset's intensity node. The result is never
    /// null. A null node stands for a preset without intensity. Exceptions of the serializer and of
    /// the setting pass.
    virtual std::unique_ptr<IIntensitySetting>
    Create(const Brassel::ConstSerializerPtr& serializer) = 0;

    IIntensitySettingsFactory();
    IIntensitySettingsFactory(const IIntensitySettingsFactory& other);
    IIntensitySettingsFactory& operator=(const IIntensitySettingsFactory& other);
};

} // namespace Zorvik::Lumetra::LumetraPresets
