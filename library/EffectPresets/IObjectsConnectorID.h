// SPDX-License-Identifier: MIT
#pragma once

#include "LumetraPresetsUtilExport.h"

#include <QString>

namespace Zorvik::Lumetra::LumetraPresets {

/// Channels of the message bus on which the presets panel and its host speak. The library itself
/// neither sends nor receives on them.
struct LUMETRAPRESETSUTIL_EXPORT IObjectsConnectorID
{
    static const QString ACTIVATE_PRESET;
    static const QString PRESET_CHANGED;
    static const QString SETTINGS_ENABLE;
};

} // namespace Zorvik::Lumetra::LumetraPresets
