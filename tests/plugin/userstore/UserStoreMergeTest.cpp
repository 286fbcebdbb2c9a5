// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/userstore/UserStoreMerge.h"
#include "storage/JsonReader.h"
#include "storage/JsonWriter.h"

#include <gtest/gtest.h>

#include <string>

namespace LumetraTest {
namespace {

using LumetraHost::JsonReader;
using LumetraHost::JsonValue;
using LumetraHost::JsonWriter;
using LumetraPlugin::UserStoreMerge;

JsonValue::Object Parse(const std::string& text)
{
    return JsonReader::Read(text, "test.json");
}

/// The presets that this program knew, those that it knows now and those in the file now; by
/// default the file held then what this program knew.
struct Case
{
    std::string before = "{}";
    std::string after = "{}";
    std::string current = "{}";
    std::string seen = {};
};

class UserStoreMergeTest : public testing::Test
{
protected:
    /// Expects `expected` to be the merged file.
    void ExpectMerged(const Case& given, const std::string& expected, bool isChanged)
    {
        const auto current = Parse(given.current);
        const auto seen = Parse(given.seen.empty() ? given.before : given.seen);
        const UserStoreMerge merge(
            [](const JsonValue& e) { return !(*e.As<JsonValue::Object>())->Find("broken"); });
        EXPECT_EQ(merge.Apply(*Parse(given.before), *Parse(given.after), *seen, *current),
                  isChanged);
        EXPECT_EQ(JsonWriter::Write(*current), JsonWriter::Write(*Parse(expected)));
    }

    static std::string Presets(const std::string& items)
    {
        return R"({"UserPresets": {"items": [)" + items + "]}}";
    }
};

TEST_F(UserStoreMergeTest, withoutChangesLeavesTheFileAlone)
{
    const auto data = Presets(R"({"id": "a", "name": "A"})");
    ExpectMerged({data, data, data}, data, false);
}

TEST_F(UserStoreMergeTest, appendsANewPresetToWhatAnotherProgramAppended)
{
    ExpectMerged({Presets(R"({"id": "a"})"), Presets(R"({"id": "a"}, {"id": "mine"})"),
                  Presets(R"({"id": "a"}, {"id": "theirs"})")},
                 Presets(R"({"id": "a"}, {"id": "theirs"}, {"id": "mine"})"), true);
}

TEST_F(UserStoreMergeTest, makesTheListInAnEmptyFile)
{
    ExpectMerged({"{}", Presets(R"({"id": "mine"})"), "{}"}, Presets(R"({"id": "mine"})"), true);
}

TEST_F(UserStoreMergeTest, removesWhatWasRemovedHere)
{
    ExpectMerged({Presets(R"({"id": "a"}, {"id": "b"})"), Presets(R"({"id": "b"})"),
                  Presets(R"({"id": "a"}, {"id": "b"}, {"id": "theirs"})")},
                 Presets(R"({"id": "b"}, {"id": "theirs"})"), true);
}

TEST_F(UserStoreMergeTest, keepsAPresetThatWasRemovedHereButChangedByAnotherProgram)
{
    const auto current = Presets(R"({"id": "a", "name": "Renamed"})");
    ExpectMerged({Presets(R"({"id": "a", "name": "A"})"), Presets(""), current}, current, false);
}

TEST_F(UserStoreMergeTest, doesNotResurrectWhatAnotherProgramRemoved)
{
    const auto known = Presets(R"({"id": "a"}, {"id": "b"})");
    ExpectMerged({known, known, Presets(R"({"id": "b"})")}, Presets(R"({"id": "b"})"), false);
}

TEST_F(UserStoreMergeTest, keepsAPresetThatWasChangedHereButRemovedByAnotherProgram)
{
    const auto after = Presets(R"({"id": "a", "name": "Renamed"})");
    ExpectMerged({Presets(R"({"id": "a", "name": "A"})"), after, Presets("")}, after, true);
}

TEST_F(UserStoreMergeTest, joinsEditsOfDifferentMembersOfOnePreset)
{
    ExpectMerged({Presets(R"({"id": "a", "name": "A", "popular": false})"),
                  Presets(R"({"id": "a", "name": "Mine", "popular": false})"),
                  Presets(R"({"id": "a", "name": "A", "popular": true})")},
                 Presets(R"({"id": "a", "name": "Mine", "popular": true})"), true);
}

TEST_F(UserStoreMergeTest, keepsFieldsThatThisProgramDoesNotKnow)
{
    ExpectMerged({Presets(R"({"id": "a", "name": "A"})"), Presets(R"({"id": "a", "name": "B"})"),
                  R"({"note": 12345678901234567890,
                      "UserPresets": {"items": [{"id": "a", "name": "A", "tags": ["x"]}],
                                      "colour": "red"}})"},
                 R"({"note": 12345678901234567890,
                     "UserPresets": {"items": [{"id": "a", "name": "B", "tags": ["x"]}],
                                     "colour": "red"}})",
                 true);
}

TEST_F(UserStoreMergeTest, keepsBadEntriesVerbatimAndInPlace)
{
    ExpectMerged({Presets(R"({"id": "a"})"), Presets(""),
                  Presets(R"(7, {"id": "a", "broken": 1}, {"id": "a"}, "text")")},
                 Presets(R"(7, {"id": "a", "broken": 1}, "text")"), true);
}

TEST_F(UserStoreMergeTest, tellsPresetsOfOneIdApartByTheirOrder)
{
    ExpectMerged({Presets(R"({"id": "a", "name": "1"}, {"id": "a", "name": "2"})"),
                  Presets(R"({"id": "a", "name": "1"}, {"id": "a", "name": "two"})"),
                  Presets(R"({"id": "a", "name": "1"}, {"id": "a", "name": "2"})")},
                 Presets(R"({"id": "a", "name": "1"}, {"id": "a", "name": "two"})"), true);
}

TEST_F(UserStoreMergeTest, knowsAPresetWithoutIdByItsName)
{
    ExpectMerged({Presets(R"({"name": "A", "popular": false})"),
                  Presets(R"({"id": "A", "name": "A", "popular": true})"),
                  Presets(R"({"name": "A", "popular": false, "x": 1})")},
                 Presets(R"({"name": "A", "popular": true, "x": 1, "id": "A"})"), true);
}

TEST_F(UserStoreMergeTest, writesIntoTheListAtTheTopWhereAFileHasItThere)
{
    ExpectMerged({R"({"items": [{"id": "a"}]})", Presets(R"({"id": "a"}, {"id": "b"})"),
                  R"({"items": [{"id": "a"}]})"},
                 R"({"items": [{"id": "a"}, {"id": "b"}]})", true);
}

TEST_F(UserStoreMergeTest, movesAsideWhatStandsInThePlaceOfTheList)
{
    ExpectMerged({"{}", Presets(R"({"id": "a"})"), R"({"UserPresets": "text"})"},
                 R"json({"UserPresets": {"items": [{"id": "a"}]},
                         "UserPresets (unreadable)": "text"})json",
                 true);
}

TEST_F(UserStoreMergeTest, addsAndRemovesFavouriteMarksAmongThoseOfOthers)
{
    ExpectMerged(
        {R"({"Favourites": [{"group": "G", "id": "old"}]})",
         R"({"Favourites": [{"group": "G", "id": "new"}]})",
         R"({"Favourites": [{"group": "G", "id": "old"}, {"group": "G", "id": "theirs"}]})"},
        R"({"Favourites": [{"group": "G", "id": "theirs"}, {"group": "G", "id": "new"}]})", true);
}

TEST_F(UserStoreMergeTest, keepsMarksOfPresetsThatThisProgramDoesNotHave)
{
    const auto current = R"({"Favourites": [{"group": "Missing catalogue", "id": "x"}, 3]})";
    ExpectMerged({"{}", "{}", current}, current, false);
}

TEST_F(UserStoreMergeTest, doesNotDoubleAMarkThatAnotherProgramHasSetToo)
{
    const auto mark = R"({"Favourites": [{"group": "G", "id": "a"}]})";
    ExpectMerged({"{}", mark, mark}, mark, false);
}

TEST_F(UserStoreMergeTest, comparesNumbersByValueAndMembersInAnyOrder)
{
    const auto equal = [](const char* a, const char* b) {
        return UserStoreMerge::AreEqual(JsonValue(JsonValue::Content(Parse(a))),
                                        JsonValue(JsonValue::Content(Parse(b))));
    };
    EXPECT_TRUE(equal(R"({"a": 1, "b": [true, null]})", R"({"b": [true, null], "a": 1.0})"));
    EXPECT_FALSE(equal(R"({"a": 1})", R"({"a": "1"})"));
    EXPECT_FALSE(equal(R"({"a": 1})", R"({"a": 1, "b": 2})"));
    EXPECT_FALSE(equal(R"({"a": [1, 2]})", R"({"a": [2, 1]})"));
    EXPECT_FALSE(equal(R"({"a": null})", R"({"b": null})"));
}

} // namespace
} // namespace LumetraTest
