// SPDX-License-Identifier: MIT
#pragma once

#include <QMetaType>

namespace Zorvik::Lumetra::LumetraPresets {

/// What the model's TuneRole asks of a preset.
enum class TuneSettingType : int
{
    ChangeEnd = 0, ///< an interactive change of the intensity has ended
    Apply = 1      ///< apply the preset
};

} // namespace Zorvik::Lumetra::LumetraPresets

Q_DECLARE_METATYPE(Zorvik::Lumetra::LumetraPresets::TuneSettingType)
