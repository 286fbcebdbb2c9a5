// SPDX-License-Identifier: MIT
// The interfaces' special members stand here, in the one place that emits their virtual tables and
// type information.
#include "Settings/IIntensitySetting.h"
#include "Settings/IIntensitySettingsFactory.h"

namespace Zorvik::Lumetra::LumetraPresets {

IIntensitySetting::IIntensitySetting() = default;
IIntensitySetting::IIntensitySetting(const IIntensitySetting&) = default;
IIntensitySetting& IIntensitySetting::operator=(const IIntensitySetting&) = default;
IIntensitySetting::~IIntensitySetting() = default;

IIntensitySettingsFactory::~IIntensitySettingsFactory() = default;
IIntensitySettingsFactory::IIntensitySettingsFactory() = default;
IIntensitySettingsFactory::IIntensitySettingsFactory(const IIntensitySettingsFactory&) = default;
IIntensitySettingsFactory&
IIntensitySettingsFactory::operator=(const IIntensitySettingsFactory&) = default;

} // namespace Zorvik::Lumetra::LumetraPresets
