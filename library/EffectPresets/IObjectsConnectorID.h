// SPDX-License-Identifier: MIT
#pragma once

#include "LumetraPresetsUtilExport.h"

#include <QString>

namespace Zorvik::Lumetra::LumetraPresets {

/// Names the channels of the message bus on which the presets panel and its host speak. The library
/// itself neither sends nor receives on them. The names are made when the library is loaded, so use
/// them only once main() runs.
struct LUMETRAPRESETSUTIL_EXPORT IObjectsConnectorID
{
    /// The host asks the panel to apply the preset with the ID in the message's one text.
    static const QString ACTIVATE_PRESET;
    /// The panel tells the ID and the name of the applied preset, two texts, empty for none.
    static const QString PRESET_CHANGED;
    /// The host enables or disables the panel with the message's one bool.
    static const QString SETTINGS_ENABLE;
};

} // namespace Zorvik::Lumetra::LumetraPresets
