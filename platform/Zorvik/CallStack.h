// SPDX-License-Identifier: MIT
#pragma once

#include "ZorvikPlatformExport.h"

#include <string>

namespace Zorvik {

/// The caller's call stack as text, a line per frame. For error reports; costs tens of
/// microseconds.
ZORVIKPLATFORM_EXPORT std::string GetCallStack();

} // namespace Zorvik
