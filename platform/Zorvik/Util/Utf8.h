// SPDX-License-Identifier: MIT
#pragma once

#include "ZorvikPlatformExport.h"

#include <QString>

#include <string>

namespace Zorvik::Util {

/// All bytes of `text`, NUL included. Invalid UTF-8 is converted as QString::fromUtf8() does it.
ZORVIKPLATFORM_EXPORT QString Utf8ToQString(const std::string& text);

} // namespace Zorvik::Util
