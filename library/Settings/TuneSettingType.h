// SPDX-License-Identifier: MIT
#pragma once

#include <QMetaType>

namespace Zorvik::Lumetra::LumetraPresets {

/// A value of the model's TuneRole asks this of a preset.
enum class TuneSettingType : int
{
    ChangeEnd = 0, ///< The preset ends an interactive change of its intensity.
    Apply = 1      ///< The preset is applied.
};

} // namespace Zorvik::Lumetra::LumetraPresets

Q_DECLARE_METATYPE(Zorvik::Lumetra::LumetraPresets::TuneSettingType)
