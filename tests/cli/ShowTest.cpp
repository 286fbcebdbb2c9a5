// SPDX-License-Identifier: GPL-2.0-or-later
#include "CliTest.h"
#include "Zorvik/Brassel/ISerializer.h"
#include "storage/JsonDocument.h"

using testing::HasSubstr;
using testing::Not;
using Zorvik::Brassel::ConstSerializerPtr;

namespace {

constexpr char Film[] = R"({"format": "lumetra-catalogue", "version": 1,
  "defaultSettings": { "exposure": { "title": "Brightness", "begin": -100, "end": 100,
      "variables": [ { "setting": "stops", "begin": -2, "end": 2 } ] } },
  "groups": [ {"name": "Films", "names": {"de": "Filme"}, "items": [
    {"name": "Old Film", "names": {"de": "Alter Film"}, "id": "film.old", "popular": true,
     "author": "Ada", "licence": "CC-BY-4.0",
     "intensity": {"type": 1, "blendSetting": {"value": 80}},
     "settings": {"effects": [
       {"effect": {"id": "exposure", "stops": 1}},
       {"effect": {"id": "clarity", "amount": 20}},
       {"effect": {"id": "lut3d", "file": "film.cube"}}]}},
    {"name": "Still", "id": "film.still",
     "settings": {"effects": [{"effect": {"id": "clarity", "amount": 0}},
                              {"effect": {"id": "vignette", "amount": -2}}]}}]}]})";

constexpr char Cube[] = "LUT_3D_SIZE 2\n0 0 0\n1 0 0\n0 1 0\n1 1 0\n0 0 1\n1 0 1\n0 1 1\n1 1 0.9\n";

class ShowTest : public CliTest
{
protected:
    void SetUp() override
    {
        CliTest::SetUp();
        WriteFile("looks.json", Film);
        WriteFile("film.cube", Cube);
    }

    ConstSerializerPtr ShowJson(const char* preset) const
    {
        const CliResult result =
            Run({QStringLiteral("show"), QLatin1String(preset), QStringLiteral("--json")});
        EXPECT_EQ(result.code, 0) << result.messages;
        return LumetraHost::JsonDocument::Parse(QByteArray::fromStdString(result.output), "show")
            .GetRoot();
    }
};

} // namespace

TEST_F(ShowTest, tellsEverythingAboutAPreset)
{
    const CliResult result = Run({QStringLiteral("show"), QStringLiteral("Old Film")});

    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.messages, "");
    EXPECT_EQ(result.output, "Name:         Old Film\n"
                             "Id:           film.old\n"
                             "Other names:  de: Alter Film\n"
                             "Group:        Films\n"
                             "Author:       Ada\n"
                             "Licence:      CC-BY-4.0\n"
                             "Marks:        popular\n"
                             "Intensity:    80 (1 to 100), blending\n"
                             "Depends on:   the pixels around a pixel too (spatial)\n"
                             "Effects:\n"
                             "  Exposure (exposure)\n"
                             "    stops: 1 stops (-5 to 5, default 0)\n"
                             "  Clarity (clarity)\n"
                             "    amount: 20 % (-100 to 100, default 0)\n"
                             "  Colour table (lut3d)\n"
                             "    cube of 2 x 2 x 2 colours\n"
                             "Sliders:\n"
                             "  exposure \"Brightness\": 50 (-100 to 100)\n"
                             "    moves stops of exposure from -2 to 2\n");
}

TEST_F(ShowTest, tellsEverythingAsJson)
{
    const auto preset = ShowJson("film.old");

    EXPECT_EQ(preset->Get("name", ""), "Old Film");
    EXPECT_EQ(preset->GetNode("names")->Get("de", ""), "Alter Film");
    EXPECT_EQ(preset->GetNode("group")->Get("name", ""), "Films");
    EXPECT_EQ(preset->GetNode("group")->GetNode("names")->Get("de", ""), "Filme");
    EXPECT_EQ(preset->Get("author", ""), "Ada");
    EXPECT_EQ(preset->Get("licence", ""), "CC-BY-4.0");
    EXPECT_TRUE(preset->Get("spatial", false));
    EXPECT_EQ(preset->Get("reach", ""), "neighbours");
    const auto effects = preset->GetCollection("effects");
    ASSERT_EQ(effects->GetCount(), 3U);
    const auto stops = effects->GetElement(0)->GetCollection("parameters")->GetElement(0);
    EXPECT_EQ(stops->Get("name", ""), "stops");
    EXPECT_EQ(stops->Get("value", 0.0), 1.0);
    EXPECT_EQ(stops->Get("minimum", 0.0), -5.0);
    EXPECT_EQ(stops->Get("unit", ""), "stops");
    const auto table = effects->GetElement(2)->GetCollection("tables")->GetElement(0);
    EXPECT_EQ(table->Get("kind", ""), "cube");
    EXPECT_EQ(table->Get("size", 0), 2);
    const auto slider = preset->GetCollection("sliders")->GetElement(0);
    EXPECT_EQ(slider->Get("maximum", 0), 100);
    EXPECT_EQ(slider->GetCollection("variables")->GetElement(0)->Get("parameter", ""), "stops");
}

TEST_F(ShowTest, countsOnlyEffectsThatChangeSomething)
{
    const auto preset = ShowJson("film.still");

    EXPECT_FALSE(preset->Get("spatial", true));
    EXPECT_EQ(preset->Get("reach", ""), "place");
    EXPECT_EQ(preset->GetNode("intensity")->Get("kind", ""), "none");
}

TEST_F(ShowTest, saysWhatMakesAPresetUnusable)
{
    WriteFile("looks.json", R"({"format": "lumetra-catalogue", "version": 1, "groups": [
        {"name": "Shop", "settings": {"appStoreId": {"id": "shop"}},
         "items": [{"name": "Later", "id": "later", "resource": "later.json"}]}]})");

    const CliResult result = Run({QStringLiteral("show"), QStringLiteral("later")});

    EXPECT_EQ(result.code, 0);
    EXPECT_THAT(result.output, HasSubstr("\nNot usable:   expected its effects in the file "
                                         "\"shop/later.json\" below "));
    EXPECT_THAT(result.output, Not(HasSubstr("Depends on:"))) << "nobody knows";
}

TEST_F(ShowTest, speaksGermanAndWritesTheSameJsonInEveryLanguage)
{
    const QStringList show{QStringLiteral("show"), QStringLiteral("film.old")};
    const CliResult german = RunIn("de_DE.UTF-8", show);
    EXPECT_EQ(german.code, 0);
    EXPECT_THAT(german.output, HasSubstr("Alter Film\n"));
    EXPECT_THAT(german.output, HasSubstr("Gruppe:"));
    EXPECT_THAT(german.output, HasSubstr("Belichtung (exposure)"));
    const QStringList json = show + QStringList{QStringLiteral("--json")};
    EXPECT_EQ(RunIn("de_DE.UTF-8", json).output, Run(json).output);
}

TEST_F(ShowTest, refusesUnknownPresets)
{
    const CliResult result = Run({QStringLiteral("show"), QStringLiteral("Old Fulm")});
    EXPECT_EQ(result.code, 2);
    EXPECT_THAT(result.messages, HasSubstr("PRESET: expected the name or id of a preset, found "
                                           "\"Old Fulm\", did you mean \"Old Film\"?"));
    EXPECT_EQ(Run({QStringLiteral("show")}).code, 2);
    EXPECT_EQ(Run({QStringLiteral("show"), QStringLiteral("film.old"), QStringLiteral("x")}).code,
              2);
}
