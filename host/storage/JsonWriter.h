// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "storage/JsonValue.h"

#include <string>

namespace LumetraHost {

/// Writes values as JSON text: members in their order, indented by 2, a line break at the end, the
/// same bytes for the same values in every locale. Numbers read back as the same double.
class JsonWriter
{
public:
    /// Exception for nesting that JsonReader would not read again.
    static std::string Write(const JsonObject& object);

    /// `value` as the shortest text that reads back as the same double. It must be finite.
    static std::string NumberText(double value);
    /// Exception when `text` is not valid UTF-8, so that it could not be written.
    static void CheckText(const std::string& text);
    /// `text` in quotes. Exception when it is not valid UTF-8.
    static std::string Quote(const std::string& text);
};

} // namespace LumetraHost
