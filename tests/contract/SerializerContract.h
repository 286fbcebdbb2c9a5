// SPDX-License-Identifier: MIT
#pragma once

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Exception.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <string>
#include <vector>

namespace LumetraTest {

/// Requirements on every ISerializer and ISerializerCollection. A Subject offers `SerializerPtr
/// MakeRoot()`: an empty, writable root whose path is "presets.json", and `ConstSerializerPtr
/// Reload(const SerializerPtr& root)`: the root as it reads after it has been stored and opened
/// again.
template <class Subject>
class SerializerContract : public testing::Test
{
protected:
    using Serializer = Zorvik::Brassel::ISerializer;

    static std::string ErrorOf(const std::function<void()>& operation)
    {
        try {
            operation();
        } catch (const Zorvik::Exception& error) {
            return error.GetDescription();
        }
        return "no exception";
    }

    Zorvik::Brassel::ConstSerializerPtr Reloaded() { return subject.Reload(root); }

    Subject subject;
    Zorvik::Brassel::SerializerPtr root = subject.MakeRoot();
};

/// Writes its value under "value" and counts how often it was asked to.
class SerializedNumber : public Zorvik::Brassel::ISerializable
{
public:
    void Serialize(const Zorvik::Brassel::SerializerPtr& node) const override
    {
        node->Set("value", value);
    }

    void Deserialize(const Zorvik::Brassel::ConstSerializerPtr& node) override
    {
        name = node->GetName();
        value = node->Get("value", -1);
    }

    int value = 0;
    std::string name;
};

TYPED_TEST_SUITE_P(SerializerContract);

TYPED_TEST_P(SerializerContract, aMissingKeyGivesTheDefault)
{
    EXPECT_TRUE(this->root->Get("flag", true));
    EXPECT_EQ(this->root->Get("whole", 7), 7);
    EXPECT_EQ(this->root->Get("number", 0.25), 0.25);
    EXPECT_EQ(this->root->Get("text", std::string("x")), "x");
    EXPECT_EQ(this->root->Get("text", "literal"), "literal");
    EXPECT_EQ(this->root->Get("text", static_cast<const char*>(nullptr)), "");
    EXPECT_FALSE(this->root->GetNode("node"));
    EXPECT_FALSE(this->root->GetCollection("list"));
    EXPECT_FALSE(this->root->Has("flag"));
    EXPECT_EQ(this->root->GetKind("flag"), TestFixture::Serializer::Kind::None);
    EXPECT_TRUE(this->root->GetKeys().empty()) << "reading must not write";
}

TYPED_TEST_P(SerializerContract, everyScalarComesBackExactly)
{
    const std::string text = "Märchen \"quoted\" \\ \n\t \xF0\x9F\x8E\xA8";
    this->root->Set("no", false);
    this->root->Set("lowest", std::numeric_limits<int>::min());
    this->root->Set("highest", std::numeric_limits<int>::max());
    this->root->Set("tenth", 0.1);
    this->root->Set("sum", 0.0030000000000000005);
    this->root->Set("tiny", std::numeric_limits<double>::denorm_min());
    this->root->Set("huge", -std::numeric_limits<double>::max());
    this->root->Set("text", text);
    this->root->Set("empty", "");

    const auto read = this->Reloaded();
    EXPECT_FALSE(read->Get("no", true));
    EXPECT_EQ(read->Get("lowest", 0), std::numeric_limits<int>::min());
    EXPECT_EQ(read->Get("highest", 0), std::numeric_limits<int>::max());
    EXPECT_EQ(read->Get("tenth", 0.0), 0.1);
    EXPECT_EQ(read->Get("sum", 0.0), 0.0030000000000000005);
    EXPECT_EQ(read->Get("tiny", 0.0), std::numeric_limits<double>::denorm_min());
    EXPECT_EQ(read->Get("huge", 0.0), -std::numeric_limits<double>::max());
    EXPECT_EQ(read->Get("text", ""), text);
    EXPECT_EQ(read->Get("empty", "default"), "");
}

TYPED_TEST_P(SerializerContract, aLiteralIsWrittenAsTextNotAsBool)
{
    this->root->Set("text", "literal");
    this->root->Set("null", static_cast<const char*>(nullptr));
    EXPECT_EQ(this->root->GetKind("text"), TestFixture::Serializer::Kind::Text);
    EXPECT_EQ(this->root->Get("null", "default"), "");
}

TYPED_TEST_P(SerializerContract, wholeNumbersAndDoublesReadAsEachOther)
{
    this->root->Set("whole", 3);
    this->root->Set("number", 3.0);
    const auto read = this->Reloaded();
    EXPECT_EQ(read->Get("whole", 0.0), 3.0);
    EXPECT_EQ(read->Get("number", 0), 3);
}

TYPED_TEST_P(SerializerContract, refusesNumbersThatAreNoInt)
{
    this->root->Set("fraction", 2.5);
    this->root->Set("large", 3e9);
    this->root->Set("small", -2147483649.0);
    for (const char* key : {"fraction", "large", "small"}) {
        const std::string error = this->ErrorOf([&] { this->root->Get(key, 0); });
        EXPECT_NE(error.find("presets.json/" + std::string(key) + ": expected a whole number"),
                  std::string::npos)
            << error;
    }
}

TYPED_TEST_P(SerializerContract, refusesAValueOfAnotherKindAndNamesThePlace)
{
    const auto items = this->root->CreateNode("UserPresets")->CreateCollection("items");
    for (int i = 0; i < 4; ++i)
        items->AddElement()->Set("popular", i < 3 ? "" : "yes");
    const auto element = this->root->GetNode("UserPresets")->GetCollection("items")->GetElement(3);

    EXPECT_EQ(this->ErrorOf([&] { element->Get("popular", false); }),
              "presets.json/UserPresets/items[3]/popular: expected bool, found string");
    EXPECT_EQ(this->ErrorOf([&] { element->Get("popular", 1.0); }),
              "presets.json/UserPresets/items[3]/popular: expected number, found string");
    EXPECT_EQ(this->ErrorOf([&] { element->GetNode("popular"); }),
              "presets.json/UserPresets/items[3]/popular: expected node, found string");
    EXPECT_EQ(this->ErrorOf([&] { element->GetCollection("popular"); }),
              "presets.json/UserPresets/items[3]/popular: expected collection, found string");
    EXPECT_EQ(this->ErrorOf([&] { this->root->Get("UserPresets", ""); }),
              "presets.json/UserPresets: expected string, found node");
    // Not the other way round: a stored form may keep a collection of named elements like a node.
    EXPECT_EQ(this->ErrorOf([&] { this->root->GetNode("UserPresets")->GetNode("items"); }),
              "presets.json/UserPresets/items: expected node, found collection");
}

TYPED_TEST_P(SerializerContract, tellsTheKindOfEveryEntry)
{
    using Kind = typename TestFixture::Serializer::Kind;
    this->root->Set("bool", true);
    this->root->Set("int", 1);
    this->root->Set("double", 1.5);
    this->root->Set("text", "x");
    this->root->CreateNode("node");
    this->root->CreateCollection("collection");
    const auto read = this->Reloaded();
    EXPECT_EQ(read->GetKind("bool"), Kind::Bool);
    EXPECT_EQ(read->GetKind("int"), Kind::Number);
    EXPECT_EQ(read->GetKind("double"), Kind::Number);
    EXPECT_EQ(read->GetKind("text"), Kind::Text);
    EXPECT_EQ(read->GetKind("node"), Kind::Node);
    EXPECT_EQ(read->GetKind("collection"), Kind::Collection);
    EXPECT_TRUE(read->Has("node"));
}

TYPED_TEST_P(SerializerContract, keepsKeysInTheOrderOfWriting)
{
    for (const char* key : {"z", "a", "m"})
        this->root->Set(key, 1);
    this->root->CreateNode("b");
    this->root->CreateCollection("c");
    EXPECT_EQ(this->Reloaded()->GetKeys(), (std::vector<std::string>{"z", "a", "m", "b", "c"}));
}

TYPED_TEST_P(SerializerContract, writingReplacesWhatStoodUnderTheKey)
{
    this->root->Set("key", "text");
    this->root->Set("key", 4);
    EXPECT_EQ(this->root->Get("key", 0), 4);
    this->root->CreateNode("key")->Set("inner", 1);
    EXPECT_FALSE(this->root->CreateNode("key")->Has("inner")) << "a created node is empty";
    this->root->CreateCollection("key")->AddElement();
    EXPECT_EQ(this->root->CreateCollection("key")->GetCount(), 0U)
        << "a created collection is empty";
    EXPECT_EQ(this->root->GetKeys(), (std::vector<std::string>{"key"}));
}

TYPED_TEST_P(SerializerContract, createdNodesAndCollectionsStandAtOnce)
{
    const auto node = this->root->CreateNode("node");
    const auto list = this->root->CreateCollection("list");
    EXPECT_TRUE(this->root->GetNode("node"));
    EXPECT_EQ(this->root->GetCollection("list")->GetCount(), 0U);

    const auto element = list->AddElement();
    node->Set("late", 1);
    element->Set("late", 2);
    EXPECT_EQ(this->root->GetNode("node")->Get("late", 0), 1);
    EXPECT_EQ(this->root->GetCollection("list")->GetElement(0)->Get("late", 0), 2);
}

TYPED_TEST_P(SerializerContract, handlesStayGoodWhileTheirTreeGrows)
{
    const auto list = this->root->CreateCollection("list");
    const auto first = list->AddElement();
    const auto child = first->CreateNode("child");
    for (int i = 0; i < 200; ++i) {
        list->AddElement()->Set("i", i);
        this->root->Set("key" + std::to_string(i), i);
    }
    child->Set("late", 1);
    EXPECT_EQ(list->GetCount(), 201U);
    EXPECT_EQ(this->root->GetCollection("list")->GetElement(0)->GetNode("child")->Get("late", 0),
              1);
    EXPECT_EQ(list->GetElement(200)->Get("i", 0), 199);
}

TYPED_TEST_P(SerializerContract, aNodeKeepsItsTreeAlive)
{
    const auto inner = this->root->CreateNode("outer")->CreateNode("inner");
    inner->Set("key", 5);
    this->root.reset();
    EXPECT_EQ(inner->Get("key", 0), 5);
}

TYPED_TEST_P(SerializerContract, namesNodesByKeyAndElementsByTheirOwnName)
{
    this->root->CreateNode("child");
    const auto named = this->root->CreateCollection("named");
    named->AddElement("tone");
    named->AddElement("grain");
    this->root->CreateCollection("unnamed")->AddElement();
    const auto read = this->Reloaded();
    EXPECT_EQ(read->GetNode("child")->GetName(), "child");
    ASSERT_EQ(read->GetCollection("named")->GetCount(), 2U);
    EXPECT_EQ(read->GetCollection("named")->GetElement(0)->GetName(), "tone");
    EXPECT_EQ(read->GetCollection("named")->GetElement(1)->GetName(), "grain");
    EXPECT_EQ(read->GetCollection("unnamed")->GetElement(0)->GetName(), "");
}

TYPED_TEST_P(SerializerContract, refusesAnElementPastTheEnd)
{
    const auto list = this->root->CreateCollection("list");
    list->AddElement();
    const std::string error = this->ErrorOf([&] { list->GetElement(1); });
    EXPECT_NE(error.find("presets.json/list"), std::string::npos) << error;
}

TYPED_TEST_P(SerializerContract, refusesToWriteANumberThatIsNotFinite)
{
    this->root->Set("number", 1.0);
    for (const double bad : {std::nan(""), std::numeric_limits<double>::infinity(),
                             -std::numeric_limits<double>::infinity()}) {
        const std::string error = this->ErrorOf([&] { this->root->Set("number", bad); });
        EXPECT_NE(error.find("presets.json/number"), std::string::npos) << error;
    }
    EXPECT_EQ(this->root->Get("number", 0.0), 1.0);
}

TYPED_TEST_P(SerializerContract, anObjectReadsItselfFromItsNode)
{
    this->root->CreateNode("object")->Set("value", 6);
    SerializedNumber number;
    EXPECT_TRUE(this->root->ReadObject("object", number));
    EXPECT_EQ(number.value, 6);
    EXPECT_EQ(number.name, "object");
}

TYPED_TEST_P(SerializerContract, anObjectWithoutANodeIsLeftAlone)
{
    SerializedNumber number;
    number.value = 4;
    EXPECT_FALSE(this->root->ReadObject("object", number));
    EXPECT_EQ(number.value, 4);
}

TYPED_TEST_P(SerializerContract, anObjectWritesItselfIntoAFreshNode)
{
    this->root->CreateNode("object")->Set("old", 1);
    SerializedNumber number;
    number.value = 9;
    this->root->WriteObject("object", number);
    EXPECT_EQ(this->root->GetNode("object")->GetKeys(), (std::vector<std::string>{"value"}));
    EXPECT_EQ(this->root->GetNode("object")->Get("value", 0), 9);
}

TYPED_TEST_P(SerializerContract, anObjectReadsItselfFromAnElementUnderItsOwnName)
{
    const auto list = this->root->CreateCollection("list");
    list->AddElement("tone")->Set("value", 3);
    SerializedNumber number;
    list->ReadObject(0, "any class", number);
    EXPECT_EQ(number.value, 3);
    EXPECT_EQ(number.name, "tone");
}

REGISTER_TYPED_TEST_SUITE_P(SerializerContract, aMissingKeyGivesTheDefault,
                            everyScalarComesBackExactly, aLiteralIsWrittenAsTextNotAsBool,
                            wholeNumbersAndDoublesReadAsEachOther, refusesNumbersThatAreNoInt,
                            refusesAValueOfAnotherKindAndNamesThePlace, tellsTheKindOfEveryEntry,
                            keepsKeysInTheOrderOfWriting, writingReplacesWhatStoodUnderTheKey,
                            createdNodesAndCollectionsStandAtOnce,
                            handlesStayGoodWhileTheirTreeGrows, aNodeKeepsItsTreeAlive,
                            namesNodesByKeyAndElementsByTheirOwnName, refusesAnElementPastTheEnd,
                            refusesToWriteANumberThatIsNotFinite, anObjectReadsItselfFromItsNode,
                            anObjectWithoutANodeIsLeftAlone, anObjectWritesItselfIntoAFreshNode,
                            anObjectReadsItselfFromAnElementUnderItsOwnName);

} // namespace LumetraTest
