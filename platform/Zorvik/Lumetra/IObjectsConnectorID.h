// SPDX-License-Identifier: MIT
#pragma once

#include "ZorvikPlatformExport.h"

#include <QString>

namespace Zorvik::Lumetra::LumetraInt {

/// Names the channels of the message bus that the host speaks on.
struct ZORVIKPLATFORM_EXPORT IObjectsConnectorID
{
    /// A message has one bool, true while the core drawer is locked: presets then apply nothing.
    inline static const QString CORE_DRAWER_LOCK = QStringLiteral("CORE_DRAWER_LOCK");
};

} // namespace Zorvik::Lumetra::LumetraInt
