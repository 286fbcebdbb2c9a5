// SPDX-License-Identifier: GPL-2.0-or-later
// The scanner must take what the parser takes and make the same of it: whoever reads a text cannot
// tell which of the two has read it.
#include "storage/JsonScanner.h"

#include "storage/JsonException.h"
#include "storage/JsonParser.h"
#include "storage/JsonReader.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <string>

using namespace LumetraHost;

namespace {

/// A value with everything in it and its places, so that equal texts mean equal values.
std::string Described(const JsonValue& value);

std::string Described(const JsonObject& object)
{
    std::string text;
    for (const auto& [key, value] : object.GetMembers()) {
        text += '<' + key + '>' + Described(value);
        if (object.Find(key) != &value)
            text += "?";
    }
    return text;
}

std::string Bits(double value)
{
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return std::to_string(bits);
}

std::string Described(const JsonValue& value)
{
    std::string text = std::string(value.GetKindName()) + '@' + std::to_string(value.line) + ':' +
                       std::to_string(value.column) + '=';
    if (const auto* object = value.As<JsonValue::Object>())
        text += Described(**object);
    else if (const auto* array = value.As<JsonValue::Array>())
        for (const JsonValue& element : (*array)->elements)
            text += Described(element);
    else if (const auto* string = value.As<std::string>())
        text += *string;
    else if (const auto* number = value.As<JsonNumber>())
        text += number->text + '~' + Bits(number->value);
    else if (const auto* flag = value.As<bool>())
        text += *flag ? "true" : "false";
    return text + ';';
}

std::string Scanned(const std::string& text)
{
    const auto object = JsonScanner(text).Scan();
    return object ? Described(*object) : "refused";
}

std::string Parsed(const std::string& text)
{
    try {
        return Described(*JsonParser::Parse(text, "a.json"));
    } catch (const JsonException&) {
        return "refused";
    }
}

std::string ObjectOf(std::size_t members)
{
    std::string text = "{";
    for (std::size_t i = 0; i < members; ++i)
        text += (i == 0 ? "\"k" : ",\"k") + std::to_string(i) + "\":" + std::to_string(i);
    return text + "}";
}

std::string ArrayOf(std::size_t elements)
{
    std::string text = "{\"a\":[0";
    for (std::size_t i = 1; i < elements; ++i)
        text += "," + std::to_string(i);
    return text + "]}";
}

std::string Nested(std::size_t depth)
{
    return "{\"a\":" + std::string(depth - 1, '[') + std::string(depth - 1, ']') + "}";
}

const char* const everything = "{ \"a\": [1, -0, 0.5e-3, 12E+2 , true,false, null ],\n"
                               "\t\"b\\n\\u0041\\ud83d\\uDE00\": {\"\": \"\xC3\xA4\xE2\x82\xAC"
                               "\xF0\x9F\x98\x80\", \"c\":{}},\r\n \"d\" :[],\"e\":[[{}]] }\n";

} // namespace

TEST(JsonScanner, readsWhatTheParserReads)
{
    const std::string texts[] = {
        everything,
        "{}",
        " { } ",
        "\xEF\xBB\xBF{\"a\":1}",
        R"({"a":"\"\\\/\b\f\n\r\t\u0000\uFFFF"})",
        R"({"a":[0,-0,-0.0,-0e0,1e308,5e-324,18446744073709551615,-9223372036854775808]})",
        R"({"a":123456789012345678901234567890,"b":0.1000000000000000055511151231257827})",
        ObjectOf(15),
        ObjectOf(16),
        ObjectOf(17),
        ObjectOf(1023),
        ObjectOf(1024),
        ObjectOf(5000),
        ArrayOf(1),
        ArrayOf(1023),
        ArrayOf(1024),
        ArrayOf(5000),
        Nested(JsonReader::MAX_DEPTH)};
    for (const std::string& text : texts) {
        EXPECT_EQ(Scanned(text), Parsed(text)) << text.substr(0, 100);
        EXPECT_NE(Scanned(text), "refused") << text.substr(0, 100);
    }
}

TEST(JsonScanner, refusesWhatTheParserRefuses)
{
    const std::string texts[] = {"",
                                 " ",
                                 "[]",
                                 "1",
                                 "{",
                                 "{}x",
                                 "{} {}",
                                 R"({"a" 1})",
                                 R"({"a":1,})",
                                 "{,}",
                                 R"({a:1})",
                                 R"({"a":[1,]})",
                                 R"({"a":[,1]})",
                                 R"({"a":[1 2]})",
                                 R"({"a":01})",
                                 R"({"a":+1})",
                                 R"({"a":1.})",
                                 R"({"a":.5})",
                                 R"({"a":1e})",
                                 R"({"a":1e+})",
                                 R"({"a":-})",
                                 R"({"a":1e999})",
                                 R"({"a":NaN})",
                                 R"({"a":tru})",
                                 R"({"a":True})",
                                 R"({"a":"\x"})",
                                 R"({"a":"\u12g4"})",
                                 R"({"a":"\uD800"})",
                                 R"({"a":"\uD800\u0041"})",
                                 R"({"a":"\uDC00"})",
                                 R"({"a":"\u+123"})",
                                 "{\"a\":\"\n\"}",
                                 "{\"a\":\"\x7F\xC3\"}",
                                 "{\"a\":\"\xC0\x80\"}",
                                 "{\"a\":\"\xE0\x9F\xBF\"}",
                                 "{\"a\":\"\xED\xA0\x80\"}",
                                 "{\"a\":\"\xF0\x8F\xBF\xBF\"}",
                                 "{\"a\":\"\xF4\x90\x80\x80\"}",
                                 "{\"a\":\"\xF5\x80\x80\x80\"}",
                                 "{\"a\":\"\x80\"}",
                                 R"({"a":1,"a":2})",
                                 R"({"a":1,"\u0061":2})",
                                 "{} // no",
                                 std::string("{}\0", 3),
                                 std::string("{\"a\0\":1}", 9),
                                 Nested(JsonReader::MAX_DEPTH + 1),
                                 "\xEF\xBB{}"};
    for (const std::string& text : texts) {
        EXPECT_EQ(Parsed(text), "refused") << text;
        EXPECT_EQ(Scanned(text), "refused") << text;
    }
}

TEST(JsonScanner, agreesWithTheParserOnEveryTextWithOneByteExchangedOrLeftOut)
{
    const std::string good = everything;
    constexpr char all[] = "\"\\{}[]:, \n\t0159-+.eEutfnaD\x80\xBF\xC3\xE2\xED\xF0\x1F\x7F\0";
    const std::string bytes(all, sizeof(all) - 1);
    for (std::size_t i = 0; i < good.size(); ++i) {
        std::string shorter = good;
        shorter.erase(i, 1);
        EXPECT_EQ(Scanned(shorter), Parsed(shorter)) << shorter;
        for (const char byte : bytes) {
            std::string changed = good;
            changed[i] = byte;
            EXPECT_EQ(Scanned(changed), Parsed(changed)) << changed;
        }
    }
}

TEST(JsonScanner, refusesAKeyThatOccursTwiceInALargeObject)
{
    for (const std::size_t members : {16, 100, 2000}) {
        std::string text = ObjectOf(members);
        text.replace(text.size() - 1, 1, ",\"k7\":0}");
        EXPECT_EQ(Scanned(text), "refused") << members;
    }
}
