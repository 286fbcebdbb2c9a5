// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "storage/JsonValue.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace LumetraHost {

/// Reads texts without a mistake, which nearly all are, in one go: the same values at the same
/// places as JsonParser's, under JsonReader's limits. Of any other text it only says that it is
/// one. For one text, which must outlive it.
class JsonScanner
{
public:
    explicit JsonScanner(std::string_view text);

    /// The object that the text consists of; null for anything else.
    JsonValue::Object Scan();

private:
    // Each begins at the first byte of what it reads and ends behind it; false ends the scan.
    bool ScanValue(JsonValue& value);
    bool ScanContent(JsonValue::Content& content);
    bool ScanObject(JsonValue::Content& content);
    bool ScanMember(JsonObject::Member& member);
    bool ScanArray(JsonValue::Content& content);
    bool ScanNumber(JsonNumber& number);
    bool ScanString(std::string& text);
    bool ScanEscape(std::string& text);
    bool ScanEscapedCharacter(std::string& text);
    bool ScanCharacter(std::string& text);
    bool ScanHex(std::uint32_t& unit);

    void SkipSpace();
    bool SkipDigits();
    bool Take(char byte);
    bool Take(std::string_view word);
    bool IsAt(char byte) const { return m_at != m_end && *m_at == byte; }

    const char* m_at;
    const char* m_end;
    const char* m_lineBegin;
    std::uint32_t m_line = 1;
    std::uint32_t m_continuationBytes = 0; // since m_lineBegin: bytes that begin no character
    std::size_t m_valueCount = 0;
    std::size_t m_depth = 0;

    // Entries of the objects and arrays that are open, by depth; their memory serves again.
    std::vector<std::vector<JsonObject::Member>> m_members;
    std::vector<std::vector<JsonValue>> m_elements;
};

} // namespace LumetraHost
