// SPDX-License-Identifier: MIT
#include "Zorvik/Core/Property.h"

#include <gtest/gtest.h>

using Zorvik::Core::Property;

TEST(Property, knowsItsNameAndStartsEmpty)
{
    const Property property("tone");
    EXPECT_EQ(property.GetName(), "tone");
    EXPECT_TRUE(property.GetEntries().empty());
    EXPECT_EQ(property.Find("gain"), nullptr);
}

TEST(Property, appendsInOrderAndReplacesInPlace)
{
    Property property("tone");
    property.Set("a", std::int64_t(1));
    property.Set("b", std::string("two"));
    property.Set("c", 3.5);
    property.Set("b", true);

    const auto& entries = property.GetEntries();
    ASSERT_EQ(entries.size(), 3U);
    EXPECT_EQ(entries[0].first, "a");
    EXPECT_EQ(entries[1].first, "b");
    EXPECT_EQ(entries[2].first, "c");
    EXPECT_EQ(entries[1].second, Property::Value(true));
}

TEST(Property, findsValuesToChange)
{
    Property property("tone");
    property.Set("gain", 1.0);
    *property.Find("gain") = 2.0;
    const Property& constProperty = property;
    EXPECT_EQ(std::get<double>(*constProperty.Find("gain")), 2.0);
}

TEST(Property, sharesItsChildren)
{
    const auto child = std::make_shared<Property>("child");
    Property property("tone");
    property.Set("child", child);
    property.Set("list", Property::List{child});
    child->Set("late", std::int64_t(4));
    EXPECT_NE(std::get<Property::Ptr>(*property.Find("child"))->Find("late"), nullptr);
    EXPECT_EQ(std::get<Property::List>(*property.Find("list")).front(), child);
}
