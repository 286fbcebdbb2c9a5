// SPDX-License-Identifier: MIT
#pragma once

#include "ZorvikPlatformExport.h"

#include <QString>

namespace Zorvik::Lumetra::LumetraInt {

/// Channels of the message bus that the host speaks on.
struct ZORVIKPLATFORM_EXPORT IObjectsConnectorID
{
    /// One bool: the core drawer is locked.
    inline static const QString CORE_DRAWER_LOCK = QStringLiteral("CORE_DRAWER_LOCK");
};

} // namespace Zorvik::Lumetra::LumetraInt
