// SPDX-License-Identifier: MIT
#pragma once

#include "ZorvikPlatformExport.h"

#include <string>

namespace Zorvik {

/// Returns the caller's call stack as text with one line per frame. It is meant for error reports,
/// since a call costs tens of microseconds.
ZORVIKPLATFORM_EXPORT std::string GetCallStack();

} // namespace Zorvik
