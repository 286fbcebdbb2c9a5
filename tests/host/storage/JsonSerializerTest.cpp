// SPDX-License-Identifier: GPL-2.0-or-later
#include "storage/JsonSerializer.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "storage/JsonDocument.h"
#include "storage/JsonException.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <string>
#include <vector>

using namespace LumetraHost;
using Zorvik::Brassel::ConstSerializerPtr;
using Zorvik::Brassel::ISerializer;
using Zorvik::Brassel::SerializerPtr;

namespace {

SerializerPtr Parse(const char* text)
{
    return JsonDocument::Parse(text, "presets.json").GetRoot();
}

std::string ErrorOf(const std::function<void()>& operation)
{
    try {
        operation();
    } catch (const JsonException& error) {
        return error.GetPlace().ToText() + "|" + error.what();
    }
    return "no error";
}

} // namespace

TEST(JsonSerializer, givesTheDefaultForAMissingKey)
{
    const SerializerPtr node = Parse("{}");

    EXPECT_TRUE(node->Get("a", true));
    EXPECT_EQ(node->Get("a", 7), 7);
    EXPECT_EQ(node->Get("a", 1.5), 1.5);
    EXPECT_EQ(node->Get("a", "x"), "x");
    EXPECT_FALSE(node->GetNode("a"));
    EXPECT_FALSE(node->GetCollection("a"));
    EXPECT_EQ(node->GetKind("a"), ISerializer::Kind::None);
    EXPECT_FALSE(node->Has("a"));
}

TEST(JsonSerializer, readsEveryKind)
{
    const SerializerPtr node =
        Parse(R"({"flag": true, "number": -3.0, "text": "\u00e4", "node": {}, "list": []})");

    EXPECT_TRUE(node->Get("flag", false));
    EXPECT_EQ(node->Get("number", 0), -3);
    EXPECT_EQ(node->Get("number", 0.0), -3.0);
    EXPECT_EQ(node->Get("text", ""), "\xC3\xA4");
    EXPECT_EQ(node->GetNode("node")->GetName(), "node");
    EXPECT_EQ(node->GetCollection("list")->GetCount(), 0U);
    EXPECT_EQ(node->GetKeys(),
              (std::vector<std::string>{"flag", "number", "text", "node", "list"}));
    EXPECT_EQ(node->GetKind("node"), ISerializer::Kind::Node);
    EXPECT_EQ(node->GetKind("list"), ISerializer::Kind::Collection);
}

// Reads every kind of value in every way: all but the fitting pairs are refused.
TEST(JsonSerializer, refusesEveryValueOfAnotherKind)
{
    const SerializerPtr node = Parse(R"({"null": null, "bool": true, "number": 1.5,
        "string": "x", "node": {}, "collection": []})");
    using Read = std::function<void(const std::string&)>;
    const std::vector<std::pair<std::string, Read>> reads = {
        {"bool", [&](const std::string& key) { node->Get(key, false); }},
        {"number", [&](const std::string& key) { node->Get(key, 0.0); }},
        {"string", [&](const std::string& key) { node->Get(key, ""); }},
        {"node", [&](const std::string& key) { node->GetNode(key); }},
        {"collection", [&](const std::string& key) { node->GetCollection(key); }},
    };

    for (const auto& [expected, read] : reads) {
        for (const std::string& key : node->GetKeys()) {
            const bool fits = key == expected || (expected == "collection" && key == "node");
            const std::string error = ErrorOf([&, &fitting = read] { fitting(key); });
            if (fits)
                EXPECT_EQ(error, "no error") << expected << " from " << key;
            else
                EXPECT_NE(
                    error.find("presets.json/" + key + ": expected " + expected + ", found " + key),
                    std::string::npos)
                    << error;
        }
    }
}

TEST(JsonSerializer, readsOnlyWholeNumbersOfTheRangeAsInt)
{
    const SerializerPtr node = Parse(R"({"largest": 2147483647, "smallest": -2147483648,
        "whole": 3.0, "exponent": 1e3, "minusZero": -0, "over": 2147483648,
        "under": -2147483649, "fraction": 1.9, "huge": 123456789012345678901234567890,
        "wraps": 3000000000, "tiny": 1e-300})");

    EXPECT_EQ(node->Get("largest", 0), std::numeric_limits<int>::max());
    EXPECT_EQ(node->Get("smallest", 0), std::numeric_limits<int>::min());
    EXPECT_EQ(node->Get("whole", 0), 3);
    EXPECT_EQ(node->Get("exponent", 0), 1000);
    EXPECT_EQ(node->Get("minusZero", 1), 0);
    for (const char* key : {"over", "under", "fraction", "huge", "wraps", "tiny"})
        EXPECT_NE(ErrorOf([&] {
                      node->Get(key, 0);
                  }).find("expected a whole number from -2147483648 to 2147483647, found number"),
                  std::string::npos)
            << key;
}

TEST(JsonSerializer, namesThePlaceOfAWrongValue)
{
    const SerializerPtr root = Parse(R"({"UserPresets": {
  "items": [ {}, {"name": "x",
    "popular": "yes"} ]}})");
    const auto item = root->GetNode("UserPresets")->GetCollection("items")->GetElement(1);

    EXPECT_EQ(ErrorOf([&] { item->Get("popular", false); }),
              "presets.json:3:16|presets.json/UserPresets/items[1]/popular: expected bool, found "
              "string");
    EXPECT_EQ(item->GetPath(), "presets.json/UserPresets/items[1]");
}

TEST(JsonSerializer, givesTheElementsOfAnObjectTheirNames)
{
    const SerializerPtr root = Parse(R"({"sliders": {"exposure": {"end": 1}, "contrast": {}},
        "list": [{}]})");
    const auto sliders = root->GetCollection("sliders");

    ASSERT_EQ(sliders->GetCount(), 2U);
    EXPECT_EQ(sliders->GetElement(0)->GetName(), "exposure");
    EXPECT_EQ(sliders->GetElement(0)->GetPath(), "presets.json/sliders/exposure");
    EXPECT_EQ(sliders->GetElement(1)->GetName(), "contrast");
    EXPECT_EQ(root->GetCollection("list")->GetElement(0)->GetName(), "");
}

TEST(JsonSerializer, refusesElementsThatAreNoNodesAndElementsPastTheEnd)
{
    const SerializerPtr root = Parse(R"({"list": [{}, 4], "sliders": {"a": null}})");

    EXPECT_EQ(ErrorOf([&] { root->GetCollection("list")->GetElement(1); }),
              "presets.json:1:15|presets.json/list[1]: expected node, found number");
    EXPECT_EQ(ErrorOf([&] { root->GetCollection("sliders")->GetElement(0); }),
              "presets.json:1:36|presets.json/sliders/a: expected node, found null");
    EXPECT_EQ(ErrorOf([&] { root->GetCollection("list")->GetElement(2); }),
              "presets.json:1:10|presets.json/list: expected an element 2, found 2 elements");
}

TEST(JsonSerializer, writesIntoTheTreeAtOnce)
{
    const JsonDocument document("new.json");
    const SerializerPtr root = document.GetRoot();

    root->Set("name", "x");
    const auto items = root->CreateNode("UserPresets")->CreateCollection("items");
    items->AddElement()->Set("popular", true);
    items->AddElement()->Set("value", 3);

    const SerializerPtr again = document.GetRoot();
    const auto read = again->GetNode("UserPresets")->GetCollection("items");
    ASSERT_EQ(read->GetCount(), 2U);
    EXPECT_TRUE(read->GetElement(0)->Get("popular", false));
    EXPECT_EQ(read->GetElement(1)->Get("value", 0), 3);
}

TEST(JsonSerializer, replacesWhatStoodUnderTheKeyInItsPlace)
{
    const SerializerPtr root = Parse(R"({"a": [1], "b": 2, "c": {"d": 1}})");

    root->Set("a", 1.5);
    root->CreateNode("c");

    EXPECT_EQ(root->GetKeys(), (std::vector<std::string>{"a", "b", "c"}));
    EXPECT_EQ(root->Get("a", 0.0), 1.5);
    EXPECT_TRUE(root->GetNode("c")->GetKeys().empty());
}

TEST(JsonSerializer, refusesNumbersThatAreNotFinite)
{
    const SerializerPtr root = Parse(R"({"a": 1})");

    EXPECT_EQ(ErrorOf([&] { root->Set("a", std::numeric_limits<double>::infinity()); }),
              "presets.json|presets.json/a: expected a finite number to write, found inf");
    EXPECT_NE(ErrorOf([&] { root->Set("a", std::numeric_limits<double>::quiet_NaN()); }),
              "no error");
    EXPECT_EQ(root->Get("a", 0), 1);
}

TEST(JsonSerializer, refusesTextThatIsNoUtf8)
{
    const SerializerPtr root = Parse("{}");

    EXPECT_THROW(root->Set("a", "\xFF"), Zorvik::Exception);
    EXPECT_THROW(root->Set("\xFF", 1), Zorvik::Exception);
    EXPECT_TRUE(root->GetKeys().empty());
}

TEST(JsonSerializer, storesACollectionOfNamedElementsAsAnObject)
{
    const JsonDocument document("new.json");
    const auto sliders = document.GetRoot()->CreateCollection("sliders");

    sliders->AddElement("exposure")->Set("end", 1);
    sliders->AddElement("contrast");

    EXPECT_EQ(sliders->GetElement(1)->GetName(), "contrast");
    EXPECT_EQ(document.ToText(), "{\n  \"sliders\": {\n    \"exposure\": {\n      \"end\": 1\n"
                                 "    },\n    \"contrast\": {}\n  }\n}\n");
    EXPECT_NE(ErrorOf([&] { sliders->AddElement("exposure"); }), "no error");
    EXPECT_NE(ErrorOf([&] { sliders->AddElement(); }), "no error");
    EXPECT_EQ(sliders->GetCount(), 2U);
}

TEST(JsonSerializer, keepsItsTreeAlive)
{
    SerializerPtr node;
    {
        const JsonDocument document("new.json");
        node = document.GetRoot()->CreateNode("a");
    }
    node->Set("b", 1);

    EXPECT_EQ(node->Get("b", 0), 1);
}
