// SPDX-License-Identifier: GPL-2.0-or-later
#include "storage/JsonReader.h"

#include "storage/JsonException.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <iterator>

namespace LumetraHost {
namespace {

/// Walks over a text and tells how far the parser has come.
class TrackingIterator
{
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    TrackingIterator(const char* position, const char** reached)
        : m_position(position), m_reached(reached)
    {
    }

    reference operator*() const { return *m_position; }
    TrackingIterator& operator++()
    {
        *m_reached = ++m_position;
        return *this;
    }
    TrackingIterator operator++(int)
    {
        const TrackingIterator before = *this;
        ++*this;
        return before;
    }
    bool operator==(const TrackingIterator& other) const { return m_position == other.m_position; }
    bool operator!=(const TrackingIterator& other) const { return !(*this == other); }

private:
    const char* m_position;
    const char** m_reached;
};

/// Turns ascending offsets into lines and columns.
class LineCounter
{
public:
    explicit LineCounter(std::string_view text) : m_text(text) {}

    void MoveTo(std::size_t offset)
    {
        const std::size_t end = std::min(offset, m_text.size());
        for (; m_offset < end; ++m_offset) {
            const auto byte = static_cast<unsigned char>(m_text[m_offset]);
            if (byte == '\n') {
                ++line;
                column = 1;
            } else if ((byte & 0xC0) != 0x80) {
                ++column; // continuation bytes belong to the character before
            }
        }
    }

    std::uint32_t line = 1;
    std::uint32_t column = 1;

private:
    std::string_view m_text;
    std::size_t m_offset = 0;
};

/// Receives the parser's events and builds the tree. A refused event ends the parsing, so the
/// first error is the only one.
class TreeBuilder
{
public:
    TreeBuilder(std::string_view text, std::size_t begin)
        : m_text(text), m_lines(text), m_end(begin)
    {
        m_reached = text.data() + begin;
    }

    const char** Reached() { return &m_reached; }

    bool null() { return Add(JsonValue()); }
    bool boolean(bool value) { return Add(JsonValue(value)); }
    bool number_integer(std::int64_t value) { return AddNumber(static_cast<double>(value)); }
    bool number_unsigned(std::uint64_t value) { return AddNumber(static_cast<double>(value)); }
    bool number_float(double value, const std::string&) { return AddNumber(value); }
    bool string(std::string& value) { return Add(JsonValue(std::move(value))); }
    bool binary(std::vector<std::uint8_t>&) { return false; } // no JSON text has one
    bool start_object(std::size_t);
    bool start_array(std::size_t);
    bool end_object() { return Close(); }
    bool end_array() { return Close(); }
    bool key(std::string& name);
    bool parse_error(std::size_t position, const std::string& token,
                     const nlohmann::detail::exception& error);

    JsonValue root;
    std::string problem; ///< empty while all is well
    LineCounter& Place() { return m_lines; }

private:
    /// An object or an array that is being filled, and the key of the member that comes next.
    struct Level
    {
        JsonObject* object = nullptr;
        JsonArray* array = nullptr;
        std::string key;
    };

    bool AddNumber(double value);
    bool Add(JsonValue value);
    bool Open(JsonValue value, Level level);
    bool Close();
    void MoveToToken();
    bool Refuse(const std::string& reason);
    void TokenDone() { m_end = static_cast<std::size_t>(m_reached - m_text.data()); }

    std::string_view m_text;
    LineCounter m_lines;
    const char* m_reached;
    std::size_t m_end; // where the last token ended, or one byte later after a number
    std::vector<Level> m_open;
    std::size_t m_valueCount = 0;
};

bool IsBetweenTokens(char byte)
{
    return byte == ' ' || byte == '\n' || byte == ',' || byte == ':' || byte == '\t' ||
           byte == '\r';
}

bool IsInNumber(char byte)
{
    return (byte >= '0' && byte <= '9') || byte == '.' || byte == '-' || byte == '+' ||
           byte == 'e' || byte == 'E';
}

bool TreeBuilder::Refuse(const std::string& reason)
{
    problem = reason;
    return false;
}

void TreeBuilder::MoveToToken()
{
    // Between two tokens that begin something only these occur. After a number m_end may already
    // be behind one of them, never inside the next token.
    while (m_end < m_text.size() && IsBetweenTokens(m_text[m_end]))
        ++m_end;
    m_lines.MoveTo(m_end);
}

bool TreeBuilder::AddNumber(double value)
{
    MoveToToken();
    std::size_t end = m_end;
    while (end < m_text.size() && IsInNumber(m_text[end]))
        ++end;
    return Add(JsonValue(JsonNumber{value, std::string(m_text.substr(m_end, end - m_end))}));
}

bool TreeBuilder::Add(JsonValue value)
{
    MoveToToken();
    value.line = m_lines.line;
    value.column = m_lines.column;
    if (++m_valueCount > JsonReader::MaxValues)
        return Refuse("expected at most " + std::to_string(JsonReader::MaxValues) + " values");
    if (m_open.empty())
        root = std::move(value);
    else if (Level& level = m_open.back(); level.array)
        level.array->elements.push_back(std::move(value));
    else
        level.object->AppendNew(std::move(level.key), std::move(value));
    TokenDone();
    return true;
}

bool TreeBuilder::start_object(std::size_t)
{
    auto object = std::make_shared<JsonObject>();
    JsonObject* const opened = object.get();
    return Open(JsonValue(std::move(object)), {opened, nullptr, {}});
}

bool TreeBuilder::start_array(std::size_t)
{
    auto array = std::make_shared<JsonArray>();
    JsonArray* const opened = array.get();
    return Open(JsonValue(std::move(array)), {nullptr, opened, {}});
}

bool TreeBuilder::Open(JsonValue value, Level level)
{
    if (m_open.size() == JsonReader::MaxDepth) {
        MoveToToken();
        return Refuse("expected nesting of at most " + std::to_string(JsonReader::MaxDepth) +
                      " levels");
    }
    if (!Add(std::move(value)))
        return false;
    m_open.push_back(std::move(level));
    return true;
}

bool TreeBuilder::Close()
{
    m_open.pop_back();
    TokenDone();
    return true;
}

bool TreeBuilder::key(std::string& name)
{
    MoveToToken();
    Level& level = m_open.back();
    if (const JsonValue* earlier = level.object->Find(name))
        return Refuse("expected each key once, found \"" + name + "\" again (first on line " +
                      std::to_string(earlier->line) + ")");
    level.key = std::move(name);
    TokenDone();
    return true;
}

/// The parser's message, without its own prefix and without the quoted text, which may be long or
/// no valid UTF-8.
std::string Reason(const std::string& what)
{
    const std::size_t dash = what.find(" - ");
    std::string reason = what.substr(dash == std::string::npos ? 0 : dash + 3);
    if (const std::size_t quoted = reason.find("; last read: "); quoted != std::string::npos) {
        const std::size_t after = reason.rfind("'; expected ");
        const bool isAfter = after != std::string::npos && after > quoted;
        reason = reason.substr(0, quoted) + (isAfter ? reason.substr(after + 1) : std::string());
    }
    const bool tells = reason.find("expected ", reason.find("; ")) != std::string::npos;
    return tells ? reason : reason + "; expected a JSON value";
}

/// Where the unexpected token begins; `end` is the number of bytes that the parser has read. The
/// parser tells the token's text only for strings and numbers.
std::size_t FindUnexpectedToken(const std::string& what, std::size_t end, const std::string& token)
{
    const auto tells = [&what](const char* text) { return what.find(text) != std::string::npos; };
    if (tells("unexpected string literal") || tells("unexpected number literal"))
        return end - std::min(end, token.size());
    if (tells("unexpected false literal"))
        return end - std::min(end, std::size_t(5));
    if (tells("unexpected true literal") || tells("unexpected null literal"))
        return end - std::min(end, std::size_t(4));
    return end - 1; // one character, or the end of the text, which counts as one
}

bool TreeBuilder::parse_error(std::size_t position, const std::string& token,
                              const nlohmann::detail::exception& error)
{
    constexpr int numberOverflow = 406;
    const std::string what = error.what();
    if (error.id == numberOverflow) {
        MoveToToken();
        return Refuse("expected a number that fits a double, found " + token.substr(0, 40));
    }
    // Inside a broken token, the place is the byte that does not fit.
    const bool isBroken = what.find("; last read: ") != std::string::npos;
    m_lines.MoveTo(isBroken ? position - 1 : FindUnexpectedToken(what, position, token));
    return Refuse("syntax error: " + Reason(what));
}

[[noreturn]] void Fail(const LineCounter& place, const std::string& fileName,
                       const std::string& message)
{
    const JsonPlace at{fileName, place.line, place.column};
    throw JsonException(at.ToText() + ": " + message, at, message);
}

/// Refuses NUL: the parser takes it for the end of the text and would not look at the rest.
void RefuseNul(std::string_view text, const std::string& fileName)
{
    const std::size_t nul = text.find('\0');
    if (nul == std::string_view::npos)
        return;
    LineCounter place(text);
    place.MoveTo(nul);
    Fail(place, fileName, "expected JSON text in UTF-8, found a NUL byte");
}

} // namespace

JsonValue::Object JsonReader::Read(std::string_view text, const std::string& fileName)
{
    RefuseNul(text, fileName);
    const bool hasMark = text.substr(0, 3) == "\xEF\xBB\xBF";
    if (text.find_first_not_of(" \t\r\n", hasMark ? 3 : 0) == std::string_view::npos)
        Fail(LineCounter(text), fileName, "expected a JSON object, found nothing");

    if (hasMark)
        text.remove_prefix(3);
    TreeBuilder builder(text, 0);
    const char* const end = text.data() + text.size();
    nlohmann::ordered_json::sax_parse(TrackingIterator(text.data(), builder.Reached()),
                                      TrackingIterator(end, builder.Reached()), &builder);
    if (!builder.problem.empty())
        Fail(builder.Place(), fileName, builder.problem);
    if (const auto* object = builder.root.As<JsonValue::Object>())
        return *object;
    Fail(LineCounter(text), fileName,
         std::string("expected an object at the top, found ") + builder.root.GetKindName());
}

} // namespace LumetraHost
