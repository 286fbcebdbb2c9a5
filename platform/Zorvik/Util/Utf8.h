// SPDX-License-Identifier: MIT
#pragma once

#include "ZorvikPlatformExport.h"

#include <QString>

#include <string>

namespace Zorvik::Util {

/// Converts all bytes of `text`, NUL included. Invalid UTF-8 becomes what QString::fromUtf8() makes
/// of it; nothing is thrown.
ZORVIKPLATFORM_EXPORT QString Utf8ToQString(const std::string& text);

} // namespace Zorvik::Util
