// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <string>

namespace LumetraHost {

/// Throws a Zorvik::Exception "file:line: message", or "file: message" when `line` is 0.
[[noreturn]] void FailInLut(const QString& path, qint64 line, const std::string& message);

} // namespace LumetraHost
