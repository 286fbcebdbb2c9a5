// SPDX-License-Identifier: MIT
#include "Zorvik/Brassel/SerializerProperty.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Exception.h"
#include "support/StoredForm.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>

using namespace LumetraTest;
using Zorvik::Brassel::ISerializer;
using Zorvik::Brassel::SerializerProperty;
using Zorvik::Core::Property;

namespace {

std::string ErrorOf(const std::function<void()>& operation)
{
    try {
        operation();
    } catch (const Zorvik::Exception& error) {
        EXPECT_EQ(error.GetFile(), "Zorvik/Brassel/SerializerProperty");
        EXPECT_GT(error.GetLine(), 0);
        EXPECT_NE(error.GetFunction(), "");
        return error.GetDescription();
    }
    return "no exception";
}

} // namespace

TEST(SerializerProperty, wrapsTheTreeWithoutCopying)
{
    const auto tree = std::make_shared<Property>("root");
    const auto node = SerializerProperty::Create(tree);
    node->Set("written", 1);
    tree->Set("direct", true);
    EXPECT_EQ(StoredText(*tree), "{written: 1, direct: true}");
    EXPECT_TRUE(node->Get("direct", false));
}

TEST(SerializerProperty, keepsTheTreeAlive)
{
    auto tree = std::make_shared<Property>("root");
    const std::weak_ptr<Property> watch = tree;
    auto node = SerializerProperty::Create(tree);
    tree.reset();
    EXPECT_FALSE(watch.expired());
    node.reset();
    EXPECT_TRUE(watch.expired());
}

TEST(SerializerProperty, beginsPathsWithTheNameOrTheGivenRoot)
{
    const auto tree = std::make_shared<Property>("root");
    tree->Set("flag", std::string("x"));
    EXPECT_EQ(ErrorOf([&] { SerializerProperty::Create(tree)->Get("flag", true); }),
              "root/flag: expected bool, found string");
    const auto node = SerializerProperty::Create(tree, "user.json");
    EXPECT_EQ(node->GetPath(), "user.json");
    EXPECT_EQ(node->GetName(), "root") << "the path changes no name";
    EXPECT_EQ(ErrorOf([&] { node->Get("flag", true); }),
              "user.json/flag: expected bool, found string");
}

TEST(SerializerProperty, refusesANullTree)
{
    EXPECT_EQ(ErrorOf([] { SerializerProperty::Create(nullptr); }),
              "expected a property to wrap, found none");
}

// Every kind of read against every kind of value: all but the fitting pairs are refused.
TEST(SerializerProperty, namesWhatItExpectedAndWhatItFound)
{
    const auto node = StoredNode{
        {"bool", true},
        {"number", 1.5},
        {"string", "x"},
        {"node", StoredNode{}},
        {"collection",
         StoredList{}}}.ToSerializer("f");
    using Read = std::function<void(const std::string&)>;
    const std::vector<std::pair<std::string, Read>> reads = {
        {"bool", [&](const std::string& key) { node->Get(key, false); }},
        {"number", [&](const std::string& key) { node->Get(key, 0.0); }},
        {"string", [&](const std::string& key) { node->Get(key, ""); }},
        {"node", [&](const std::string& key) { node->GetNode(key); }},
        {"collection", [&](const std::string& key) { node->GetCollection(key); }}};
    for (const std::string& found : node->GetKeys())
        for (const auto& [expected, read] : reads)
            EXPECT_EQ(ErrorOf([&, r = read] { r(found); }),
                      found == expected
                          ? "no exception"
                          : "f/" + found + ": expected " + expected + ", found " + found);
}

TEST(SerializerProperty, saysWhyANumberIsNoInt)
{
    const auto node = StoredNode{
        {"fraction", 2.5},
        {"large", 3e9},
        {"low", -2147483649.0},
        {"lowest", -2147483648.0},
        {"text", "1"}}.ToSerializer("f");
    const std::string expected = ": expected a whole number from -2147483648 to 2147483647, found ";
    EXPECT_EQ(ErrorOf([&] { node->Get("fraction", 0); }), "f/fraction" + expected + "number 2.5");
    EXPECT_EQ(ErrorOf([&] { node->Get("large", 0); }), "f/large" + expected + "number 3e+09");
    EXPECT_EQ(ErrorOf([&] { node->Get("low", 0); }), "f/low" + expected + "number -2147483649");
    EXPECT_EQ(node->Get("lowest", 0), std::numeric_limits<int>::min());
    EXPECT_EQ(ErrorOf([&] { node->Get("text", 0); }), "f/text: expected number, found string");
}

TEST(SerializerProperty, refusesNumbersThatAreNotFinite)
{
    const auto tree = std::make_shared<Property>("f");
    tree->Set("bad", std::numeric_limits<double>::infinity());
    const auto node = SerializerProperty::Create(tree);
    EXPECT_EQ(ErrorOf([&] { node->Get("bad", 0.0); }),
              "f/bad: expected a finite number, found inf");
    EXPECT_EQ(ErrorOf([&] { node->Get("bad", 0); }), "f/bad: expected a finite number, found inf");
    EXPECT_EQ(ErrorOf([&] { node->Set("new", -std::numeric_limits<double>::infinity()); }),
              "f/new: expected a finite number to write, found -inf");
    EXPECT_FALSE(node->Has("new"));
}

TEST(SerializerProperty, saysHowManyElementsThereAre)
{
    const auto node =
        StoredNode{{"list", StoredList{StoredNode{}, StoredNode{}}}}.ToSerializer("f");
    EXPECT_EQ(ErrorOf([&] { node->GetCollection("list")->GetElement(2); }),
              "f/list: expected an element 2, found 2 elements");
}

TEST(SerializerProperty, aCollectionThatWasReplacedByAScalarIsEmpty)
{
    const auto node = StoredNode{}.ToSerializer("f");
    const auto list = node->CreateCollection("list");
    list->AddElement();
    node->Set("list", 1);
    EXPECT_EQ(list->GetCount(), 0U);
    EXPECT_THROW(list->GetElement(0), Zorvik::Exception);
}

TEST(SerializerProperty, keepsTextWithNulBytes)
{
    const std::string text("a\0b", 3);
    const auto node = StoredNode{}.ToSerializer();
    node->Set("text", text);
    EXPECT_EQ(node->Get("text", ""), text);
}
