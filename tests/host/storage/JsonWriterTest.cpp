// SPDX-License-Identifier: GPL-2.0-or-later
#include "storage/JsonWriter.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Exception.h"
#include "storage/JsonDocument.h"
#include "storage/JsonReader.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <string>

using namespace LumetraHost;

TEST(JsonWriter, writesIndentedTextWithALineBreakAtTheEnd)
{
    const auto document = JsonDocument::Parse(
        R"({"a":1,"b":[{},[],{"c":[true,null]}],"d":"\u00e4\"\\\n\u0001","e":{}})", "a.json");

    EXPECT_EQ(document.ToText(), "{\n"
                                 "  \"a\": 1,\n"
                                 "  \"b\": [\n"
                                 "    {},\n"
                                 "    [],\n"
                                 "    {\n"
                                 "      \"c\": [\n"
                                 "        true,\n"
                                 "        null\n"
                                 "      ]\n"
                                 "    }\n"
                                 "  ],\n"
                                 "  \"d\": \"\xC3\xA4\\\"\\\\\\n\\u0001\",\n"
                                 "  \"e\": {}\n"
                                 "}\n");
}

TEST(JsonWriter, quotesEveryLetterSoThatItIsReadAgain)
{
    for (int letter = 0; letter < 128; ++letter)
        for (const std::string& rest :
             {std::string(), std::string("rest"), std::string("\xC3\xA4")}) {
            const std::string text = "plain" + std::string(1, static_cast<char>(letter)) + rest;
            const std::string json = "{\"k\": " + JsonWriter::Quote(text) + "}";
            const auto document = JsonDocument::Parse(QByteArray::fromStdString(json), "a.json");
            EXPECT_EQ(document.GetRoot()->Get("k", std::string()), text) << letter;
        }
    EXPECT_EQ(JsonWriter::Quote(""), "\"\"");
    EXPECT_EQ(JsonWriter::Quote(" ~/!"), "\" ~/!\"");
    EXPECT_EQ(JsonWriter::Quote("\"\\\x7F\t"), "\"\\\"\\\\\x7F\\t\"");
}

TEST(JsonWriter, writesTheSameTextAgain)
{
    const QByteArray text = JsonDocument::Parse(R"({"a":[1.50,-0,1E+2,12345678901234567890123],
        "b":{"c":{}},"d":"x\u0000y"})",
                                                "a.json")
                                .ToText();

    EXPECT_EQ(JsonDocument::Parse(text, "a.json").ToText(), text);
    EXPECT_TRUE(text.contains("1.50,"));
    EXPECT_TRUE(text.contains("12345678901234567890123"));
}

TEST(JsonWriter, writesDoublesThatReadBackTheSame)
{
    std::mt19937_64 random(20240607);
    for (int i = 0; i < 20'000; ++i) {
        const std::uint64_t bits = random();
        double number = 0;
        std::memcpy(&number, &bits, sizeof number);
        if (!std::isfinite(number))
            continue;
        const std::string text = "{\"a\":" + JsonWriter::NumberText(number) + "}";
        const auto root = JsonReader::Read(text, "a.json");
        ASSERT_EQ(root->Find("a")->As<JsonNumber>()->value, number) << text;
    }
}

TEST(JsonWriter, writesExtremeDoubles)
{
    const JsonDocument document("a.json");
    const double numbers[] = {std::numeric_limits<double>::max(),
                              std::numeric_limits<double>::lowest(),
                              std::numeric_limits<double>::min(),
                              std::numeric_limits<double>::denorm_min(),
                              0.1,
                              -0.0};
    int i = 0;
    for (const double number : numbers)
        document.GetRoot()->Set(std::to_string(i++), number);

    const auto root = JsonDocument::Parse(document.ToText(), "a.json").GetRoot();

    i = 0;
    for (const double number : numbers) {
        const double read = root->Get(std::to_string(i++), 1.0);
        EXPECT_EQ(read, number);
        EXPECT_EQ(std::signbit(read), std::signbit(number));
    }
}

TEST(JsonWriter, refusesNestingThatCouldNotBeReadAgain)
{
    const JsonDocument document("a.json");
    auto node = document.GetRoot();
    for (std::size_t depth = 1; depth < JsonReader::MaxDepth; ++depth)
        node = node->CreateNode("a");
    EXPECT_NO_THROW(JsonDocument::Parse(document.ToText(), "a.json"));

    node->CreateNode("a");

    EXPECT_THROW(document.ToText(), Zorvik::Exception);
}
