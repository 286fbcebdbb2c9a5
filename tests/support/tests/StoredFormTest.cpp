// SPDX-License-Identifier: MIT
#include "support/StoredForm.h"
#include "support/RecordingSerializer.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Brassel/SerializerProperty.h"

#include <gmock/gmock.h>

using namespace LumetraTest;
using testing::ElementsAre;

TEST(StoredForm, becomesATreeInTheGivenOrder)
{
    const StoredNode node{{"name", "Warm"},
                          {"popular", true},
                          {"count", 2},
                          {"gain", 2.0},
                          {"child", StoredNode{{"key", 0.5}}},
                          {"items", StoredList{StoredNode{}, StoredNode("x", {{"a", 1}})}}};
    EXPECT_EQ(StoredText(*node.ToProperty()),
              "{name: \"Warm\", popular: true, count: 2, gain: 2.0, child: {key: 0.5}, "
              "items: [{}, x{a: 1}]}");
}

TEST(StoredForm, namesChildNodesByTheirKey)
{
    const StoredNode node{{"child", StoredNode{}}};
    EXPECT_EQ(node.ToSerializer()->GetNode("child")->GetName(), "child");
}

TEST(StoredForm, replacesAnEntryInItsPlace)
{
    StoredNode node{{"a", 1}, {"b", 2}};
    node.Set("a", "new").Set("c", 3);
    EXPECT_EQ(StoredText(*node.ToProperty()), "{a: \"new\", b: 2, c: 3}");
}

TEST(StoredForm, makesACollectionOfItsOwn)
{
    const auto collection = StoredList{StoredNode("first", {}), StoredNode{}}.ToCollection();
    ASSERT_EQ(collection->GetCount(), 2U);
    EXPECT_EQ(collection->GetElement(0)->GetName(), "first");
}

TEST(RecordingSerializer, recordsReadsWithKeyDefaultAndResult)
{
    CallLog log;
    const Zorvik::Brassel::ConstSerializerPtr node = RecordingSerializer::Wrap(
        log, StoredNode{{"name", "Warm"}, {"items", StoredList{StoredNode{}}}}.ToSerializer());
    node->Get("name", "");
    node->Get("popular", false);
    node->GetNode("child");
    node->GetCollection("items")->GetElement(0)->Get("x", 3);
    EXPECT_THAT(log.Take(),
                ElementsAre("read test/name, default \"\" -> \"Warm\"",
                            "read test/popular, default false -> false", "node test/child -> none",
                            "collection test/items", "element test/items[0]",
                            "read test/items[0]/x, default 3 -> 3"));
}

TEST(RecordingSerializer, recordsWritesAndPassesThemOn)
{
    CallLog log;
    const auto tree = StoredNode{}.ToProperty();
    const auto node =
        RecordingSerializer::Wrap(log, Zorvik::Brassel::SerializerProperty::Create(tree, "test"));
    node->Set("name", "Warm");
    node->CreateNode("child")->Set("gain", 0.5);
    node->CreateCollection("items")->AddElement("x")->Set("flag", true);
    EXPECT_THAT(log.Take(),
                ElementsAre("write test/name = \"Warm\"", "create node test/child",
                            "write test/child/gain = 0.5", "create collection test/items",
                            "add test/items[0] named \"x\"", "write test/items[0]/flag = true"));
    EXPECT_EQ(StoredText(*tree), "{name: \"Warm\", child: {gain: 0.5}, items: [x{flag: true}]}");
}
