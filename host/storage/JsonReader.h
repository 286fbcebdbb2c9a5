// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "storage/JsonValue.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace LumetraHost {

/// Reads a JSON text (RFC 8259, UTF-8, an optional byte order mark) into values that know their
/// places. Refuses what readers disagree about or what could exhaust memory: a key that occurs
/// twice in its object, nesting over 64, more than 4 million values, numbers that no double
/// holds, NUL bytes. No comments, no trailing commas.
class JsonReader
{
public:
    static constexpr std::size_t MaxDepth = 64;
    static constexpr std::size_t MaxValues = 4'000'000;

    /// The object that `text` consists of. JsonException, "file:line:column: …", for anything
    /// else; `fileName` is only for the message.
    static JsonValue::Object Read(std::string_view text, const std::string& fileName);
};

} // namespace LumetraHost
