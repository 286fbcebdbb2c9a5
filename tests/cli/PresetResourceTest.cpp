// SPDX-License-Identifier: GPL-2.0-or-later
// Presets whose effects come from a file of their own, when that file is missing or damaged.
#include "CliTest.h"
#include "Zorvik/Brassel/ISerializer.h"
#include "storage/JsonDocument.h"

#include <QImage>

using LumetraHost::HaveSamePixels;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

constexpr char Later[] = R"({"format": "lumetra-catalogue", "version": 1,
 "groups": [{"name": "Shop", "settings": {"appStoreId": {"id": "shop"},
   "intensity": {"type": 2, "sliderSetting": {"title": "Colour", "begin": 0, "end": 100,
     "variables": [{"effectID": "saturation", "setting": "amount", "begin": 0, "end": -100}]}}},
  "items": [
   {"name": "Later", "id": "later", "resource": "later.json"},
   {"name": "Thief", "id": "thief", "resource": "../../thief.json"},
   {"name": "Now", "id": "now",
    "settings": {"effects": [{"effect": {"id": "saturation", "amount": -100}}]}}]}]})";

constexpr char ResourceName[] = "empty/lumetra/resources/shop/later.json";

class PresetResourceTest : public CliTest
{
protected:
    void SetUp() override
    {
        CliTest::SetUp();
        WriteFile("later.json", Later);
        WritePhoto("a.png");
    }

    CliResult RunLater(const char* line) const
    {
        return Run(Words(line) + Words("--catalogue later.json --store presets.json"));
    }

    std::string Missing() const
    {
        return "lumetra-presets: \"Later\": expected its effects in the file \"shop/later.json\" "
               "below \"" +
               folder.path().toStdString() + "/empty/lumetra/resources\", found none\n";
    }
};

} // namespace

TEST_F(PresetResourceTest, isNamedWhenItIsMissingAndNothingIsWritten)
{
    for (const char* line :
         {"apply a.png -p later -o out.png", "apply a.png -p later -o out.png --dry-run",
          "apply a.png -p later -i 40 -o out.png", "export-lut -p later -o out.cube",
          "save later Mine"}) {
        const CliResult result = RunLater(line);
        EXPECT_EQ(result.code, 1) << line;
        EXPECT_THAT(result.output, IsEmpty()) << line;
        EXPECT_THAT(result.messages, EndsWith(Missing())) << line;
    }
    EXPECT_FALSE(Exists("out.png") || Exists("out.cube") || Exists("presets.json"));
}

TEST_F(PresetResourceTest, isNamedWithItsPlaceWhenItIsDamaged)
{
    const std::vector<std::pair<const char*, const char*>> cases = {
        {"{\"effects\": [", "/shop/later.json:1:14: "},
        {"", "/shop/later.json:1:1: "},
        {"{}", "/shop/later.json:1:1: error: expected \"effects\" with at least one effect"},
        {R"({"effects": [{"effect": {"id": "no such"}}]})",
         "/shop/later.json:1:32: error: effects[0]/effect/id: expected a known effect"},
        {R"({"effects": [{"effect": {"id": "exposure"}}]})", // not the one that the slider moves
         "/shop/later.json: expected the effect \"saturation\", which the intensity slider drives"},
    };
    for (const auto& [content, message] : cases) {
        WriteFile(ResourceName, content);
        for (const char* line : {"apply a.png -p later -o out.png",
                                 "export-lut -p later -o out.cube", "save later Mine"}) {
            const CliResult result = RunLater(line);
            EXPECT_EQ(result.code, 1) << line << content;
            EXPECT_THAT(result.messages, HasSubstr("lumetra-presets: \"Later\": ")) << content;
            EXPECT_THAT(result.messages, HasSubstr(message)) << line;
        }
    }
    EXPECT_FALSE(Exists("out.png") || Exists("out.cube") || Exists("presets.json"));
}

TEST_F(PresetResourceTest, isUsedWhenItIsThere)
{
    WriteFile(ResourceName, R"({"effects": [{"effect": {"id": "saturation", "amount": -100}}]})");

    EXPECT_EQ(RunLater("apply a.png -p later -o later.png").code, 0);
    EXPECT_EQ(RunLater("apply a.png -p now -o now.png").code, 0);

    EXPECT_TRUE(HaveSamePixels(ReadPhoto("later.png"), ReadPhoto("now.png")));
    EXPECT_THAT(RunLater("list").output, HasSubstr("[later]  intensity 100 (0 to 100), slider\n"));
}

TEST_F(PresetResourceTest, isMarkedInTheList)
{
    const CliResult text = RunLater("list");
    EXPECT_EQ(text.code, 0);
    EXPECT_THAT(text.output, HasSubstr("  Later  [later]  not usable: expected its effects in the "
                                       "file \"shop/later.json\""));
    EXPECT_THAT(text.output,
                HasSubstr("  Thief  [thief]  not usable: expected a \"resource\" inside "
                          "the folder of resources, found \"../../thief.json\"\n"));
    EXPECT_THAT(text.output, HasSubstr("[now]  intensity 100 (0 to 100), slider\n"));

    const CliResult json = RunLater("list --json");
    const auto presets =
        LumetraHost::JsonDocument::Parse(QByteArray::fromStdString(json.output), "list")
            .GetRoot()
            ->GetCollection("groups")
            ->GetElement(0)
            ->GetCollection("presets");
    EXPECT_FALSE(presets->GetElement(0)->Get("usable", true));
    EXPECT_THAT(presets->GetElement(0)->Get("problem", ""), HasSubstr("shop/later.json"));
    EXPECT_TRUE(presets->GetElement(2)->Get("usable", false));
    EXPECT_FALSE(presets->GetElement(2)->Has("problem"));
}

TEST_F(PresetResourceTest, leavesAGapInTheSheetAndIsTold)
{
    const CliResult result = RunLater("sheet a.png -o sheet.png");

    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.output, "sheet.png\n");
    EXPECT_THAT(result.messages, HasSubstr(Missing()));
    EXPECT_THAT(result.messages, Not(HasSubstr("\"Now\"")));
    EXPECT_FALSE(QImage(Path("sheet.png")).isNull());
}

TEST_F(PresetResourceTest, isNotNeededForAFavourite)
{
    EXPECT_EQ(RunLater("favourite later").code, 0);
    EXPECT_THAT(RunLater("list --favourites").output, HasSubstr("  Later  [later]  favourite"));
}
