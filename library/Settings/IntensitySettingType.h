// SPDX-License-Identifier: MIT
#pragma once

#include <QMetaType>

namespace Zorvik::Lumetra::LumetraPresets {

/// How a preset's intensity acts. The numbers are stored under "type".
enum class IntensitySettingType : int
{
    None = 0,     ///< the preset has no intensity
    Blending = 1, ///< the result is blended with the source
    Slider = 2    ///< effect parameters follow the slider
};

} // namespace Zorvik::Lumetra::LumetraPresets

Q_DECLARE_METATYPE(Zorvik::Lumetra::LumetraPresets::IntensitySettingType)
