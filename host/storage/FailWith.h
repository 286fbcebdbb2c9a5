// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>

namespace LumetraHost {

/// Throws Zorvik::Exception with `description`. The other arguments name the place of the call:
/// leave them out.
[[noreturn]] void FailWith(const std::string& description,
                           const char* function = __builtin_FUNCTION(),
                           const char* file = __builtin_FILE(), int line = __builtin_LINE());

} // namespace LumetraHost
