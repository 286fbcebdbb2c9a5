// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <stdexcept>

namespace LumetraCli {

/// The command line asks for something that cannot be done. Ends the command before it has
/// changed anything.
class UsageError : public std::runtime_error
{
public:
    explicit UsageError(const QString& message) : std::runtime_error(message.toStdString()) {}
};

} // namespace LumetraCli
