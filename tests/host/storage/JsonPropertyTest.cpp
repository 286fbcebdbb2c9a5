// SPDX-License-Identifier: GPL-2.0-or-later
#include "storage/JsonProperty.h"

#include "storage/JsonDocument.h"
#include "storage/JsonWriter.h"
#include "support/StoredForm.h"

#include "Zorvik/Exception.h"

#include <gmock/gmock.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>

using namespace LumetraHost;
using LumetraTest::StoredList;
using LumetraTest::StoredNode;
using LumetraTest::StoredText;
using Zorvik::Core::Property;

namespace {

constexpr JsonProperty::Limits Enough{60, 1'000'000};

std::string Write(const Property& property)
{
    return JsonWriter::Write(*JsonProperty::Write(property, "edit", Enough));
}

Property::Ptr Read(const std::string& text)
{
    const auto document = JsonDocument::Parse(QByteArray::fromStdString(text), "test");
    return JsonProperty::Read(*document.GetObject(), "edit");
}

std::string RefusalOf(const Property& property, const JsonProperty::Limits& limits = Enough)
{
    try {
        JsonProperty::Write(property, "edit", limits);
    } catch (const Zorvik::Exception& error) {
        return error.what();
    }
    return "nothing";
}

} // namespace

TEST(JsonProperty, bringsEveryKindOfValueBack)
{
    const auto tree = StoredNode{
        {"z", true},
        {"text", "a\"b\\c\n\u00e4"},
        {"a", StoredNode{{"y", 1.0}, {"x", 1}, {"none", StoredNode()}}},
        {"list", StoredList{StoredNode{{"value", -0.5}},
                            StoredNode("name", {{"list", StoredList{StoredNode()}}}),
                            StoredNode("name", {})}},
        {"noText", ""},
        {"noElements",
         StoredList()}}.ToProperty();

    EXPECT_EQ(StoredText(*Read(Write(*tree))), StoredText(*tree));
    EXPECT_TRUE(JsonProperty::AreEqual(*Read(Write(*tree)), *tree));
}

TEST(JsonProperty, bringsEveryNumberBack)
{
    std::mt19937_64 random(7);
    Property tree{std::string()};
    for (int i = 0; i < 1000; ++i) {
        const std::uint64_t bits = random();
        double number = 0;
        std::memcpy(&number, &bits, sizeof number);
        tree.Set("d" + std::to_string(i), std::isfinite(number) ? number : 1e22);
        tree.Set("i" + std::to_string(i), static_cast<std::int64_t>(bits));
    }
    for (const double number : {0.0, -0.0, 5.0, -1e15, 1e16, 9007199254740993.0, 5e-324})
        tree.Set("n" + std::to_string(tree.GetEntries().size()), number);
    tree.Set("most", std::numeric_limits<std::int64_t>::max());
    tree.Set("least", std::numeric_limits<std::int64_t>::min());

    EXPECT_TRUE(JsonProperty::AreEqual(*Read(Write(tree)), tree));
    EXPECT_EQ(StoredText(*Read(Write(tree))), StoredText(tree));
}

TEST(JsonProperty, givesChildNodesTheNameOfTheirKey)
{
    Property tree{std::string()};
    tree.Set("key", std::make_shared<Property>("another"));

    const auto read = Read(Write(tree));

    EXPECT_EQ(std::get<Property::Ptr>(*read->Find("key"))->GetName(), "key");
}

TEST(JsonProperty, readsWhatNoTreeCanHold)
{
    const auto tree = Read(R"({"gone": null, "plain": [1, 2.5, "x", null, [true], {"a": null}],
                              "huge": 18446744073709551616, "": "unnamed"})");

    EXPECT_EQ(StoredText(*tree),
              "{plain: [{value: 1}, {value: 2.5}, {value: \"x\"}, {}, {value: [{value: true}]}, "
              "{}], huge: 18446744073709551616.0}");
}

TEST(JsonProperty, namesThePlaceOfWhatItRefuses)
{
    Property inner{std::string()};
    inner.Set("b", std::numeric_limits<double>::infinity());
    Property tree{std::string()};
    tree.Set("a", Property::List{std::make_shared<Property>(inner)});

    EXPECT_EQ(RefusalOf(tree), "edit/a[0]/b: expected a finite number, found inf");
}

TEST(JsonProperty, takesExactlyAsMuchAsItIsAllowed)
{
    const auto tree = StoredNode{{"a", StoredList{StoredNode{{"b", 1}}}}}.ToProperty();

    EXPECT_EQ(RefusalOf(*tree, {3, 4}), "nothing");
    EXPECT_THAT(RefusalOf(*tree, {2, 4}), testing::HasSubstr("edit/a[0]: expected nesting of at "
                                                             "most 2 levels"));
    EXPECT_THAT(RefusalOf(*tree, {3, 3}),
                testing::HasSubstr("edit/a[0]/b: expected at most 3 values"));
}
