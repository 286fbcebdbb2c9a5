// SPDX-License-Identifier: GPL-2.0-or-later
#include "storage/JsonReader.h"

#include "storage/JsonParser.h"
#include "storage/JsonScanner.h"

namespace LumetraHost {

JsonValue::Object JsonReader::Read(std::string_view text, const std::string& fileName)
{
    const auto object = JsonScanner(text).Scan();
    return object ? object : JsonParser::Parse(text, fileName);
}

} // namespace LumetraHost
