// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <exception>
#include <string>

namespace LumetraHost {

/// What an exception says to the user: its first line. Some carry a call stack below it.
struct ErrorText
{
    /// UTF-8.
    static std::string FirstLine(const std::exception& error);
    /// The first line, as above.
    static QString Show(const std::exception& error);
};

} // namespace LumetraHost
