// SPDX-License-Identifier: GPL-2.0-or-later
#include "storage/JsonScanner.h"

#include "storage/JsonReader.h"

#include <charconv>

namespace LumetraHost {
namespace {

bool IsDigit(char byte)
{
    return byte >= '0' && byte <= '9';
}

/// Stands for itself in a string, whatever its neighbours are.
bool IsPlain(char byte)
{
    const auto code = static_cast<unsigned char>(byte);
    return code >= 0x20 && code < 0x80 && byte != '"' && byte != '\\';
}

/// The bytes of a character that begins with `first`, 0 when none does, and the range of the second
/// byte: outside of it are codes that have a shorter form, surrogates and those over U+10FFFF.
struct Utf8Form
{
    explicit Utf8Form(unsigned char first)
    {
        if (first >= 0xC2 && first <= 0xDF)
            length = 2;
        else if (first >= 0xE0 && first <= 0xEF)
            length = 3;
        else if (first >= 0xF0 && first <= 0xF4)
            length = 4;
        if (first == 0xE0)
            lowest = 0xA0;
        else if (first == 0xED)
            highest = 0x9F;
        else if (first == 0xF0)
            lowest = 0x90;
        else if (first == 0xF4)
            highest = 0x8F;
    }

    int length = 0;
    unsigned char lowest = 0x80;
    unsigned char highest = 0xBF;
};

/// `code` is at most U+10FFFF and no surrogate.
void AppendUtf8(std::string& text, std::uint32_t code)
{
    const auto append = [&text](std::uint32_t byte) { text += static_cast<char>(byte); };
    if (code < 0x80) {
        append(code);
    } else if (code < 0x800) {
        append(0xC0 | code >> 6);
        append(0x80 | (code & 0x3F));
    } else if (code < 0x10000) {
        append(0xE0 | code >> 12);
        append(0x80 | (code >> 6 & 0x3F));
        append(0x80 | (code & 0x3F));
    } else {
        append(0xF0 | code >> 18);
        append(0x80 | (code >> 12 & 0x3F));
        append(0x80 | (code >> 6 & 0x3F));
        append(0x80 | (code & 0x3F));
    }
}

} // namespace

JsonScanner::JsonScanner(std::string_view text)
    : m_at(text.data()), m_end(text.data() + text.size()), m_members(JsonReader::MAX_DEPTH + 1),
      m_elements(JsonReader::MAX_DEPTH + 1)
{
    Take("\xEF\xBB\xBF");
    m_lineBegin = m_at;
}

JsonValue::Object JsonScanner::Scan()
{
    JsonValue root;
    SkipSpace();
    if (!IsAt('{') || !ScanValue(root))
        return nullptr;
    SkipSpace();
    return m_at == m_end ? *root.As<JsonValue::Object>() : nullptr;
}

bool JsonScanner::ScanValue(JsonValue& value)
{
    if (++m_valueCount > JsonReader::MAX_VALUES)
        return false;
    value.line = m_line;
    value.column = static_cast<std::uint32_t>(m_at - m_lineBegin) + 1 - m_continuationBytes;
    return ScanContent(value.content);
}

bool JsonScanner::ScanContent(JsonValue::Content& content)
{
    if (m_at == m_end)
        return false;
    switch (*m_at) {
    case '{':
        return ScanObject(content);
    case '[':
        return ScanArray(content);
    case '"':
        return ScanString(content.emplace<std::string>());
    case 't':
        content = true;
        return Take("true");
    case 'f':
        content = false;
        return Take("false");
    case 'n':
        return Take("null");
    default:
        return ScanNumber(content.emplace<JsonNumber>());
    }
}

bool JsonScanner::ScanObject(JsonValue::Content& content)
{
    ++m_at;
    if (++m_depth > JsonReader::MAX_DEPTH)
        return false;
    auto& members = m_members[m_depth];
    SkipSpace();
    if (!IsAt('}')) {
        do {
            if (!ScanMember(members.emplace_back()))
                return false;
        } while (Take(','));
    }
    --m_depth;
    auto object = JsonObject::Make(members);
    const bool isGood = object && Take('}');
    content = std::move(object);
    return isGood;
}

/// Spaces around it included.
bool JsonScanner::ScanMember(JsonObject::Member& member)
{
    SkipSpace();
    if (!IsAt('"') || !ScanString(member.first))
        return false;
    SkipSpace();
    if (!Take(':'))
        return false;
    SkipSpace();
    if (!ScanValue(member.second))
        return false;
    SkipSpace();
    return true;
}

bool JsonScanner::ScanArray(JsonValue::Content& content)
{
    ++m_at;
    if (++m_depth > JsonReader::MAX_DEPTH)
        return false;
    auto& elements = m_elements[m_depth];
    SkipSpace();
    if (!IsAt(']')) {
        do {
            SkipSpace();
            if (!ScanValue(elements.emplace_back()))
                return false;
            SkipSpace();
        } while (Take(','));
    }
    --m_depth;
    auto array = std::make_shared<JsonArray>();
    array->elements = TakeAll(elements);
    content = std::move(array);
    return Take(']');
}

bool JsonScanner::ScanNumber(JsonNumber& number)
{
    const char* const begin = m_at;
    Take('-');
    if (!Take('0') && !SkipDigits())
        return false;
    const bool isWhole = !IsAt('.') && !IsAt('e') && !IsAt('E');
    if (Take('.') && !SkipDigits())
        return false;
    if (Take('e') || Take('E')) {
        if (!Take('-'))
            Take('+');
        if (!SkipDigits())
            return false;
    }
    const auto result = std::from_chars(begin, m_at, number.value);
    if (isWhole)
        number.value += 0.0; // whole numbers have no negative zero
    number.text.assign(begin, m_at);
    return result.ec == std::errc() && result.ptr == m_at;
}

bool JsonScanner::ScanString(std::string& text)
{
    ++m_at;
    for (;;) {
        const char* const begin = m_at;
        while (m_at != m_end && IsPlain(*m_at))
            ++m_at;
        text.append(begin, m_at);
        if (m_at == m_end)
            return false;
        if (Take('"'))
            return true;
        if (*m_at == '\\' ? !ScanEscape(text) : !ScanCharacter(text))
            return false;
    }
}

bool JsonScanner::ScanEscape(std::string& text)
{
    constexpr std::string_view letters = "\"\\/bfnrt";
    constexpr std::string_view meanings = "\"\\/\b\f\n\r\t";
    if (++m_at == m_end)
        return false;
    if (Take('u'))
        return ScanEscapedCharacter(text);
    const std::size_t place = letters.find(*m_at++);
    if (place == std::string_view::npos)
        return false;
    text += meanings[place];
    return true;
}

/// Behind "\u". What does not fit 16 bits is a pair of surrogates.
bool JsonScanner::ScanEscapedCharacter(std::string& text)
{
    const auto isWithin = [](std::uint32_t unit, std::uint32_t first) {
        return unit >= first && unit < first + 0x400;
    };
    constexpr std::uint32_t leading = 0xD800;
    constexpr std::uint32_t trailing = 0xDC00;
    std::uint32_t code = 0;
    if (!ScanHex(code) || isWithin(code, trailing))
        return false;
    if (isWithin(code, leading)) {
        std::uint32_t second = 0;
        if (!Take("\\u") || !ScanHex(second) || !isWithin(second, trailing))
            return false;
        code = 0x10000 + ((code - leading) << 10) + (second - trailing);
    }
    AppendUtf8(text, code);
    return true;
}

bool JsonScanner::ScanHex(std::uint32_t& unit)
{
    constexpr int digits = 4;
    if (m_end - m_at < digits)
        return false;
    const auto result = std::from_chars(m_at, m_at + digits, unit, 16);
    m_at += digits;
    return result.ec == std::errc() && result.ptr == m_at;
}

/// One character of several bytes.
bool JsonScanner::ScanCharacter(std::string& text)
{
    const Utf8Form form(static_cast<unsigned char>(*m_at));
    if (form.length == 0 || m_end - m_at < form.length)
        return false;
    const auto second = static_cast<unsigned char>(m_at[1]);
    if (second < form.lowest || second > form.highest)
        return false;
    for (int i = 2; i < form.length; ++i)
        if ((static_cast<unsigned char>(m_at[i]) & 0xC0) != 0x80)
            return false;
    text.append(m_at, static_cast<std::size_t>(form.length));
    m_at += form.length;
    m_continuationBytes += static_cast<std::uint32_t>(form.length) - 1;
    return true;
}

void JsonScanner::SkipSpace()
{
    for (; m_at != m_end; ++m_at) {
        if (*m_at == '\n') {
            ++m_line;
            m_lineBegin = m_at + 1;
            m_continuationBytes = 0;
        } else if (*m_at != ' ' && *m_at != '\t' && *m_at != '\r') {
            return;
        }
    }
}

/// At least one.
bool JsonScanner::SkipDigits()
{
    const char* const begin = m_at;
    while (m_at != m_end && IsDigit(*m_at))
        ++m_at;
    return m_at != begin;
}

bool JsonScanner::Take(char byte)
{
    const bool isThere = IsAt(byte);
    m_at += isThere ? 1 : 0;
    return isThere;
}

bool JsonScanner::Take(std::string_view word)
{
    const std::string_view rest(m_at, static_cast<std::size_t>(m_end - m_at));
    const bool isThere = rest.substr(0, word.size()) == word;
    m_at += isThere ? word.size() : 0;
    return isThere;
}

} // namespace LumetraHost
