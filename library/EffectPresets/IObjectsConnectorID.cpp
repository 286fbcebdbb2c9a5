// SPDX-License-Identifier: MIT
#include "EffectPresets/IObjectsConnectorID.h"

namespace Zorvik::Lumetra::LumetraPresets {

const QString IObjectsConnectorID::ACTIVATE_PRESET = QStringLiteral("EFFECTPRESET_ACTIVATE_PRESET");
const QString IObjectsConnectorID::PRESET_CHANGED =
    QStringLiteral("EFFECTPRESET_WIDGET_PRESET_CHANGED");
const QString IObjectsConnectorID::SETTINGS_ENABLE =
    QStringLiteral("EFFECTPRESET_WIDGET_SETTINGS_ENABLE");

} // namespace Zorvik::Lumetra::LumetraPresets
