// SPDX-License-Identifier: MIT
#include "Zorvik/Brassel/NodeCopy.h"

#include "Zorvik/Brassel/ISerializerCollection.h"
#include "Zorvik/Exception.h"
#include "support/StoredForm.h"

#include <gtest/gtest.h>

using namespace LumetraTest;
using Zorvik::Brassel::ISerializer;
using Zorvik::Brassel::NodeCopy;

TEST(NodeCopy, copiesEverythingOfAnyKindInItsOrder)
{
    const auto from =
        StoredNode{{"flag", true},
                   {"whole", 3},
                   {"number", 2.5},
                   {"text", "Warm"},
                   {"node", StoredNode{{"deep", 1}}},
                   {"list", StoredList{StoredNode("named", {{"a", 1}}), StoredNode{}}}}
            .ToSerializer();
    const auto to = StoredNode{}.ToSerializer();

    NodeCopy::CopyAll(*from, *to);

    EXPECT_EQ(to->GetKeys(), from->GetKeys());
    EXPECT_TRUE(to->Get("flag", false));
    EXPECT_EQ(to->Get("whole", 0), 3);
    EXPECT_EQ(to->Get("number", 0.0), 2.5);
    EXPECT_EQ(to->Get("text", ""), "Warm");
    EXPECT_EQ(to->GetNode("node")->Get("deep", 0), 1);
    const auto list = to->GetCollection("list");
    ASSERT_EQ(list->GetCount(), 2U);
    EXPECT_EQ(list->GetElement(0)->GetName(), "named");
    EXPECT_EQ(list->GetElement(0)->Get("a", 0), 1);
}

TEST(NodeCopy, copiesOneEntryAndLeavesTheOthers)
{
    const auto from = StoredNode{{"a", 1}, {"b", "B"}}.ToSerializer();
    const auto to = StoredNode{{"a", 7}}.ToSerializer();

    NodeCopy::CopyEntry(*from, "b", *to);
    NodeCopy::CopyEntry(*from, "none", *to);

    EXPECT_EQ(to->Get("a", 0), 7);
    EXPECT_EQ(to->Get("b", ""), "B");
    EXPECT_EQ(to->GetKeys().size(), 2U);
}
