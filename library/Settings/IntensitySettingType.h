// SPDX-License-Identifier: MIT
#pragma once

#include <QMetaType>

namespace Zorvik::Lumetra::LumetraPresets {

/// Tells how a preset's intensity acts. The numbers are stored under "type".
enum class IntensitySettingType : int
{
    None = 0,     ///< The preset has no intensity.
    Blending = 1, ///< The preset's result is blended with the source.
    Slider = 2    ///< Effect parameters follow the slider.
};

} // namespace Zorvik::Lumetra::LumetraPresets

Q_DECLARE_METATYPE(Zorvik::Lumetra::LumetraPresets::IntensitySettingType)
