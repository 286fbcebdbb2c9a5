// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace LumetraTest {

/// While it lives, a warning or critical message in Qt's log that no ExpectLog declares fails the
/// running test, or the whole run when no test runs. Other messages go on to the earlier handler.
class LogGuard
{
public:
    LogGuard();
    ~LogGuard();

    LogGuard(const LogGuard&) = delete;
    LogGuard& operator=(const LogGuard&) = delete;
};

} // namespace LumetraTest
