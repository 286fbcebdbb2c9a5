// SPDX-License-Identifier: GPL-2.0-or-later
#include "storage/JsonException.h"

namespace LumetraHost {

std::string JsonPlace::ToText() const
{
    if (line == 0)
        return file;
    return file + ":" + std::to_string(line) + ":" + std::to_string(column);
}

JsonException::JsonException(const std::string& description, const JsonPlace& place,
                             const std::string& message, const std::string& function, int line)
    : Exception(description, function, "storage/Json", line), m_place(place), m_message(message)
{
}

JsonException::~JsonException() = default;

} // namespace LumetraHost
