// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <exception>
#include <string>

namespace LumetraHost {

/// The part of an exception's text for the user: its first line. Some carry a call stack below it.
struct ErrorText
{
    /// The first line in UTF-8.
    static std::string FirstLine(const std::exception& error);
    /// The first line as a QString.
    static QString Show(const std::exception& error);
};

} // namespace LumetraHost
