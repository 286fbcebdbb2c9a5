// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "storage/JsonValue.h"

#include <string>
#include <string_view>

namespace LumetraHost {

/// Reads what JsonReader reads, and knows what to say about everything else. It takes about twice
/// as long as JsonScanner, so that it gets only the texts that the scanner refuses.
class JsonParser
{
public:
    /// The object that `text` consists of. JsonException, "file:line:column: …", for anything
    /// else; `fileName` is only for the message.
    static JsonValue::Object Parse(std::string_view text, const std::string& fileName);
};

} // namespace LumetraHost
