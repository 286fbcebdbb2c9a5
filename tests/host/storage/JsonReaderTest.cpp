// SPDX-License-Identifier: GPL-2.0-or-later
#include "storage/JsonReader.h"

#include "storage/JsonDocument.h"
#include "storage/JsonException.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <string>

using namespace LumetraHost;

namespace {

std::string ErrorOf(const std::string& text)
{
    try {
        JsonReader::Read(text, "a.json");
    } catch (const JsonException& error) {
        return error.what();
    }
    return "no error";
}

std::string Nested(std::size_t depth)
{
    std::string text = "{\"a\":";
    text.append(depth - 1, '[');
    text.append(depth - 1, ']');
    return text + "}";
}

const JsonValue& At(const JsonValue::Object& object, const std::string& key)
{
    const JsonValue* value = object->Find(key);
    if (!value)
        throw std::runtime_error("no " + key);
    return *value;
}

std::string Place(const JsonValue& value)
{
    return std::to_string(value.line) + ":" + std::to_string(value.column);
}

struct MalformedCase
{
    const char* name;
    std::string text;
    std::string error;
};

std::ostream& operator<<(std::ostream& stream, const MalformedCase& malformed)
{
    return stream << malformed.name;
}

class MalformedText : public testing::TestWithParam<MalformedCase>
{
};

} // namespace

TEST_P(MalformedText, isRefusedWithItsPlace)
{
    EXPECT_EQ(ErrorOf(GetParam().text), GetParam().error);
}

INSTANTIATE_TEST_SUITE_P(
    JsonReader, MalformedText,
    testing::Values(
        MalformedCase{"empty", "", "a.json:1:1: expected a JSON object, found nothing"},
        MalformedCase{"blank", " \n\t", "a.json:1:1: expected a JSON object, found nothing"},
        MalformedCase{"onlyMark", "\xEF\xBB\xBF",
                      "a.json:1:1: expected a JSON object, found nothing"},
        MalformedCase{"topArray", "[]",
                      "a.json:1:1: expected an object at the top, found collection"},
        MalformedCase{"topNumber", "7", "a.json:1:1: expected an object at the top, found number"},
        MalformedCase{"topNull", "null", "a.json:1:1: expected an object at the top, found null"},
        MalformedCase{"notJson", "hello",
                      "a.json:1:1: syntax error: invalid literal; expected a JSON value"},
        MalformedCase{"nan", "{\"a\": NaN}",
                      "a.json:1:7: syntax error: invalid literal; expected a JSON value"},
        MalformedCase{"unclosed", "{\"a\": 1",
                      "a.json:1:8: syntax error: unexpected end of input; expected '}'"},
        MalformedCase{"unclosedText", "{\"a\": \"b\n",
                      "a.json:1:9: syntax error: invalid string: control character U+000A (LF) "
                      "must be escaped to \\u000A or \\n; expected a JSON value"},
        MalformedCase{"trailingComma", "{\"a\": 1,\n}",
                      "a.json:2:1: syntax error: unexpected '}'; expected string literal"},
        MalformedCase{"trailingText", "{} x",
                      "a.json:1:4: syntax error: invalid literal; expected end of input"},
        MalformedCase{"comment", "{} // x",
                      "a.json:1:4: syntax error: invalid literal; expected end of input"},
        MalformedCase{"keyTwice", "{\"a\": 1,\n \"b\": 2,\n \"a\": 3}",
                      "a.json:3:2: expected each key once, found \"a\" again (first on line 1)"},
        MalformedCase{"escapedKeyTwice", "{\"a\": 1, \"\\u0061\": 3}",
                      "a.json:1:10: expected each key once, found \"a\" again (first on line 1)"},
        MalformedCase{"invalidUtf8", "{\"a\": \"\xFF\"}",
                      "a.json:1:8: syntax error: invalid string: ill-formed UTF-8 byte; expected "
                      "a JSON value"},
        MalformedCase{"loneSurrogate", "{\"a\": \"\\uD800\"}",
                      "a.json:1:14: syntax error: invalid string: surrogate U+D800..U+DBFF must "
                      "be followed by U+DC00..U+DFFF; expected a JSON value"},
        MalformedCase{"hugeNumber", "{\"a\":\n  1e400}",
                      "a.json:2:3: expected a number that fits a double, found 1e400"},
        MalformedCase{"leadingZero", "{\"a\": 01}",
                      "a.json:1:8: syntax error: unexpected number literal; expected '}'"},
        MalformedCase{"missingComma", "{\"a\": 1\n \"b\": 2}",
                      "a.json:2:2: syntax error: unexpected string literal; expected '}'"},
        MalformedCase{"twoCommas", "{\"a\": 1,,\n \"b\": 2}",
                      "a.json:1:9: syntax error: unexpected ','; expected string literal"},
        MalformedCase{"literalAsKey", "{\n  false: 2}",
                      "a.json:2:3: syntax error: unexpected false literal; expected string "
                      "literal"},
        MalformedCase{"bareMinus", "{\"a\": -}",
                      "a.json:1:8: syntax error: invalid number; expected digit after '-'"},
        MalformedCase{"nul", std::string("{}\0{}", 5),
                      "a.json:1:3: expected JSON text in UTF-8, found a NUL byte"},
        MalformedCase{"utf16", std::string("\xFF\xFE{}", 4),
                      "a.json:1:1: syntax error: invalid literal; expected a JSON value"}),
    [](const auto& instance) { return std::string(instance.param.name); });

TEST(JsonReader, acceptsNestingUpToItsLimit)
{
    EXPECT_NO_THROW(JsonReader::Read(Nested(JsonReader::MaxDepth), "a.json"));
    EXPECT_EQ(ErrorOf(Nested(JsonReader::MaxDepth + 1)),
              "a.json:1:69: expected nesting of at most 64 levels");
}

TEST(JsonReader, refusesExtremeNestingWithOneError)
{
    EXPECT_EQ(ErrorOf(Nested(100'000)), "a.json:1:69: expected nesting of at most 64 levels");
    EXPECT_EQ(ErrorOf(std::string(100'000, '{')),
              "a.json:1:2: syntax error: unexpected '{'; expected string literal");
    EXPECT_EQ(ErrorOf(std::string(100'000, '[')),
              "a.json:1:65: expected nesting of at most 64 levels");
}

TEST(JsonReader, refusesEveryTruncation)
{
    const std::string text = "{\"a\": [1, -2.5e3, true, null, {\"b\": \"\\u00e4\xC3\xA4\"}]}";
    ASSERT_NO_THROW(JsonReader::Read(text, "a.json"));

    for (std::size_t length = 0; length < text.size(); ++length)
        EXPECT_EQ(ErrorOf(text.substr(0, length)).rfind("a.json:1:", 0), 0U) << length;
}

TEST(JsonReader, refusesMoreValuesThanItsLimit)
{
    std::string text = "{\"a\":[0";
    for (std::size_t i = 0; i < JsonReader::MaxValues; ++i)
        text += ",0";

    EXPECT_NE(ErrorOf(text + "]}").find("expected at most 4000000 values"), std::string::npos);
}

TEST(JsonReader, knowsWhereEachValueBegins)
{
    const auto root = JsonReader::Read("{ \"\xC3\xA4\xE2\x82\xAC\": 1,\r\n"
                                       "  \"b\" :\t[ 2,3 , {\"c\" : \"x\"} ],\n"
                                       "  \"d\": -4.5}",
                                       "a.json");

    EXPECT_EQ(Place(At(root, "\xC3\xA4\xE2\x82\xAC")), "1:9");
    EXPECT_EQ(Place(At(root, "b")), "2:9");
    const JsonArray& list = **At(root, "b").As<JsonValue::Array>();
    EXPECT_EQ(Place(list.elements[0]), "2:11");
    EXPECT_EQ(Place(list.elements[1]), "2:13");
    EXPECT_EQ(Place(list.elements[2]), "2:17");
    EXPECT_EQ(Place(At(*list.elements[2].As<JsonValue::Object>(), "c")), "2:24");
    EXPECT_EQ(Place(At(root, "d")), "3:8");
}

TEST(JsonReader, keepsTheDigitsOfEveryNumber)
{
    const auto root = JsonReader::Read("{\"a\": [-0, 1.50, 1E+2, 123456789012345678901234567890,"
                                       "18446744073709551615, 4.9e-324, 1e-999]}",
                                       "a.json");

    std::string digits;
    for (const JsonValue& value : (*At(root, "a").As<JsonValue::Array>())->elements)
        digits += value.As<JsonNumber>()->text + " ";
    EXPECT_EQ(digits, "-0 1.50 1E+2 123456789012345678901234567890 18446744073709551615 4.9e-324 "
                      "1e-999 ");
}

TEST(JsonReader, readsLargeObjectsWithoutQuadraticCost)
{
    std::string text = "{";
    for (int i = 0; i < 200'000; ++i)
        text += "\"key" + std::to_string(i) + "\": " + std::to_string(i) + ",";
    text += "\"last\": 1}";

    const auto root = JsonReader::Read(text, "a.json");

    ASSERT_EQ(root->GetMembers().size(), 200'001U);
    EXPECT_EQ(At(root, "key123456").As<JsonNumber>()->value, 123456);
    EXPECT_EQ(root->GetMembers()[77].first, "key77");
}

TEST(JsonReader, refusesAKeyThatOccursTwiceInALargeObject)
{
    for (const int members : {15, 16, 17, 2000}) {
        std::string text = "{";
        for (int i = 0; i < members; ++i)
            text += "\"key" + std::to_string(i) + "\": 0,";
        text += "\n\"key7\": 1}";

        EXPECT_EQ(ErrorOf(text),
                  "a.json:2:1: expected each key once, found \"key7\" again (first on line 1)");
    }
}

TEST(JsonReader, skipsAByteOrderMark)
{
    const auto root = JsonReader::Read("\xEF\xBB\xBF{\"a\": 1}", "a.json");

    EXPECT_EQ(Place(At(root, "a")), "1:7");
}

TEST(JsonDocument, namesTheFileThatCannotBeRead)
{
    const QTemporaryDir folder;
    const QString missing = folder.filePath(QStringLiteral("missing.json"));
    for (const auto& [file, reason] :
         {std::make_pair(missing, "cannot be read: No such file or directory"),
          std::make_pair(folder.path(), "expected a file, found a folder")}) {
        try {
            JsonDocument::Read(file);
            ADD_FAILURE() << file.toStdString();
        } catch (const Zorvik::Exception& error) {
            EXPECT_EQ(error.GetDescription(), file.toStdString() + ": " + reason);
        }
    }
}

TEST(JsonDocument, refusesAFileOverItsLimit)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("large.json")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(file.resize(JsonDocument::MaxFileSize + 1));
    file.close();

    try {
        JsonDocument::Read(file.fileName());
        ADD_FAILURE();
    } catch (const Zorvik::Exception& error) {
        EXPECT_EQ(error.GetDescription(),
                  file.fileName().toStdString() + ": expected at most 64 MB, found 67108865 bytes");
    }
}
