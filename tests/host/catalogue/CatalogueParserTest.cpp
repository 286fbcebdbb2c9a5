// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/CatalogueParser.h"

#include "RecordingTarget.h"
#include "Zorvik/Brassel/SerializerProperty.h"
#include "Zorvik/Exception.h"
#include "Zorvik/Quindle/EffectRegistry.h"
#include "Zorvik/Quindle/EffectSettingsImpl.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace LumetraHost;
using Zorvik::Quindle::EffectRegistry;
using Lines = std::vector<std::string>;

namespace {

/// A registered effect with a table beside its numbers, which it refuses when it is too short.
class TableEffect : public Zorvik::Quindle::EffectSettingsImpl
{
public:
    TableEffect() : EffectSettingsImpl("table") {}

    void Deserialize(const Zorvik::Brassel::ConstSerializerPtr& node) override
    {
        if (node->Get("data", "").size() < 4)
            throw Zorvik::Exception("expected a table of 4 entries", "", "", 0);
        EffectSettingsImpl::Deserialize(node);
    }
};

class CatalogueParserTest : public testing::Test
{
protected:
    void SetUp() override
    {
        EffectRegistry::Register({"exposure", {{"stops", -4, 4, 0, "stops"}}, {}});
        EffectRegistry::Register({"contrast", {{"amount", -100, 100, 0, ""}}, {}});
        EffectRegistry::Register({"table", {}, [] { return new TableEffect; }});
    }

    void TearDown() override
    {
        for (const char* id : {"exposure", "contrast", "table"})
            EffectRegistry::Unregister(id);
    }

    /// Parses `body`, the members of a catalogue beside format and version, all on line 1.
    void Parse(const std::string& body)
    {
        parser.AddDocument(JsonDocument::Parse(
            QByteArray::fromStdString(R"({"format": "lumetra-catalogue", "version": 1, )" + body +
                                      "}"),
            "a.json"));
        parser.Parse(target, nullptr);
    }

    void ParseItem(const std::string& item)
    {
        Parse(R"("groups": [{"name": "G", "items": [{"name": "before", )" + goodEffects + "}, " +
              item + R"(, {"name": "after", )" + goodEffects + "}]}]");
    }

    /// All reports without their line and column.
    Lines Reports() const
    {
        Lines lines;
        for (CatalogueReport report : parser.GetReports()) {
            report.place.line = 0;
            lines.push_back(report.ToText());
        }
        return lines;
    }

    const std::string goodEffects = R"("effects": [{"effect": {"id": "exposure", "stops": 1}}])";
    CatalogueParser parser{{"", "photo"}};
    RecordingTarget target;
};

struct ItemCase
{
    const char* name;
    const char* item;
    Lines reports;
    bool isLoaded;
};

std::ostream& operator<<(std::ostream& stream, const ItemCase& value)
{
    return stream << value.name;
}

class CatalogueItem : public CatalogueParserTest, public testing::WithParamInterface<ItemCase>
{
};

#define EFFECTS R"("effects": [{"effect": {"id": "exposure", "stops": 1}}])"

const ItemCase itemCases[] = {
    {"noNode", "7", {"a.json: error: groups[0]/items[1]: expected node, found number"}, false},
    {"noName",
     "{" EFFECTS "}",
     {"a.json: error: groups[0]/items[1]: expected the preset's \"name\", found none"},
     false},
    {"emptyName",
     R"({"name": "", )" EFFECTS "}",
     {"a.json: error: groups[0]/items[1]: expected the preset's \"name\", found none"},
     false},
    {"wrongName",
     R"({"name": 1, )" EFFECTS "}",
     {"a.json: error: groups[0]/items[1]/name: expected string, found number"},
     false},
    {"wrongId",
     R"({"name": "x", "id": {}, )" EFFECTS "}",
     {"a.json: error: groups[0]/items[1]/id: expected string, found node"},
     false},
    {"emptyId",
     R"({"name": "x", "id": "", )" EFFECTS "}",
     {"a.json: error: groups[0]/items[1]/id: expected an id that is not empty"},
     false},
    {"wrongPopular",
     R"({"name": "x", "popular": "yes", )" EFFECTS "}",
     {"a.json: error: groups[0]/items[1]/popular: expected bool, found string"},
     false},
    {"wrongImage",
     R"({"name": "x", "image": [], )" EFFECTS "}",
     {"a.json: error: groups[0]/items[1]/image: expected string, found collection"},
     false},
    {"wrongCropPolicy",
     R"({"name": "x", "previewCropPolicy": 3000000000, )" EFFECTS "}",
     {"a.json: error: groups[0]/items[1]/previewCropPolicy: expected a whole number from "
      "-2147483648 to 2147483647, found 3000000000"},
     false},
    {"wrongFitPolicy",
     R"({"name": "x", "previewFitPolicy": null, )" EFFECTS "}",
     {"a.json: error: groups[0]/items[1]/previewFitPolicy: expected number, found null"},
     false},
    {"unknownController",
     R"({"name": "x", "controller": "phto", )" EFFECTS "}",
     {"a.json: error: groups[0]/items[1]/controller: expected a kind of preset controller (\"\", "
      "\"photo\"), found \"phto\", did you mean \"photo\"?"},
     false},
    {"unknownKey",
     R"({"name": "x", "colour": 1, )" EFFECTS "}",
     {"a.json: note: groups[0]/items[1]/colour: this key is not used"},
     true},
    {"wrongSettings",
     R"({"name": "x", "settings": []})",
     {"a.json: error: groups[0]/items[1]/settings: expected node, found collection"},
     false},
    {"noEffects",
     R"({"name": "x", "settings": {"effects": []}})",
     {"a.json: warning: groups[0]/items[1]/settings: expected at least one effect, found none"},
     true},
    {"wrongEffects",
     R"({"name": "x", "effects": true})",
     {"a.json: error: groups[0]/items[1]/effects: expected collection, found bool"},
     false},
    {"wrongElement",
     R"({"name": "x", "effects": ["exposure"]})",
     {"a.json: error: groups[0]/items[1]/effects[0]: expected node, found string"},
     false},
    {"elementWithoutEffect",
     R"({"name": "x", "effects": [{"id": "exposure"}]})",
     {"a.json: error: groups[0]/items[1]/effects[0]: expected a node \"effect\", found none",
      "a.json: note: groups[0]/items[1]/effects[0]/id: this key is not used"},
     false},
    {"effectWithoutId",
     R"({"name": "x", "effects": [{"effect": {"stops": 1}}]})",
     {"a.json: error: groups[0]/items[1]/effects[0]/effect: expected the effect's \"id\", found "
      "none"},
     false},
    {"unknownEffect",
     R"({"name": "x", "effects": [{"effect": {"id": "exposrue"}}]})",
     {"a.json: error: groups[0]/items[1]/effects[0]/effect/id: expected a known effect, found "
      "\"exposrue\", did you mean \"exposure\"?"},
     false},
    {"unknownParameter",
     R"({"name": "x", "effects": [{"effect": {"id": "exposure", "stop": 1}}]})",
     {"a.json: error: groups[0]/items[1]/effects[0]/effect/stop: expected a parameter of the "
      "effect \"exposure\" (stops), found \"stop\", did you mean \"stops\"?"},
     false},
    {"wrongParameter",
     R"({"name": "x", "effects": [{"effect": {"id": "exposure", "stops": "1"}}]})",
     {"a.json: error: groups[0]/items[1]/effects[0]/effect/stops: expected number, found string"},
     false},
    {"parameterOutOfRange",
     R"({"name": "x", "effects": [{"effect": {"id": "exposure", "stops": 4.5}}]})",
     {"a.json: warning: groups[0]/items[1]/effects[0]/effect/stops: expected a number from -4.0 "
      "to 4.0, found 4.5"},
     true},
    {"effectThatRefuses",
     R"({"name": "x", "effects": [{"effect": {"id": "table", "data": "abc"}}]})",
     {"a.json: error: groups[0]/items[1]/effects[0]/effect: expected a table of 4 entries"},
     false},
    {"effectWithAWrongTable",
     R"({"name": "x", "effects": [{"effect": {"id": "table", "data": true}}]})",
     {"a.json: error: groups[0]/items[1]/effects[0]/effect/data: expected string, found bool"},
     false},
    {"effectWithATable",
     R"({"name": "x", "effects": [{"effect": {"id": "table", "data": "abcd"}}]})",
     {},
     true},
    {"wrongPreview",
     R"({"name": "x", "settingsPreview": {"effects": [{"effect": {"id": "x"}}]}, )" EFFECTS "}",
     {"a.json: error: groups[0]/items[1]/settingsPreview/effects[0]/effect/id: expected a known "
      "effect, found \"x\""},
     false},
    {"wrongIntensity",
     R"({"name": "x", "intensity": 1, )" EFFECTS "}",
     {"a.json: error: groups[0]/items[1]/intensity: expected node, found number"},
     false},
    {"intensityWithoutType",
     R"({"name": "x", "intensity": {}, )" EFFECTS "}",
     {"a.json: error: groups[0]/items[1]/intensity: expected a \"type\" from 0 to 2, found none"},
     false},
    {"unknownIntensity",
     R"({"name": "x", "intensity": {"type": 3}, )" EFFECTS "}",
     {"a.json: error: groups[0]/items[1]/intensity/type: expected a number from 0 to 2, found 3"},
     false},
    {"wrongIntensityType",
     R"({"name": "x", "intensity": {"type": 1.5}, )" EFFECTS "}",
     {"a.json: error: groups[0]/items[1]/intensity/type: expected a whole number from -2147483648 "
      "to 2147483647, found 1.5"},
     false},
    {"noIntensity", R"({"name": "x", "intensity": {"type": 0}, )" EFFECTS "}", {}, true},
    {"blendingWithoutNode",
     R"({"name": "x", "intensity": {"type": 1}, )" EFFECTS "}",
     {"a.json: warning: groups[0]/items[1]/intensity: expected a node \"blendSetting\", found "
      "none"},
     true},
    {"blendingOutOfRange",
     R"({"name": "x", "intensity": {"type": 1, "blendSetting": {"value": 255, "end": 256}}, )" EFFECTS
     "}",
     {"a.json: warning: groups[0]/items[1]/intensity/blendSetting/value: expected a number from 1 "
      "to 100, found 255",
      "a.json: warning: groups[0]/items[1]/intensity/blendSetting/end: expected a number from 1 to "
      "255, found 256"},
     true},
    {"wrongBlending",
     R"({"name": "x", "intensity": {"type": 1, "blendSetting": {"value": "80"}}, )" EFFECTS "}",
     {"a.json: error: groups[0]/items[1]/intensity/blendSetting/value: expected number, found "
      "string"},
     false},
    {"sliderWithoutNode",
     R"({"name": "x", "intensity": {"type": 2}, )" EFFECTS "}",
     {"a.json: warning: groups[0]/items[1]/intensity: expected a node \"sliderSetting\", found "
      "none"},
     true},
    {"sliderOfAMissingEffect",
     R"({"name": "x", "intensity": {"type": 2, "sliderSetting": {"end": 100, "variables":
        [{"effectID": "contrast", "setting": "amount", "end": 1}]}}, )" EFFECTS "}",
     {"a.json: error: groups[0]/items[1]: expected the effect \"contrast\", which the intensity "
      "slider drives, found none in the preset"},
     false},
    {"sliderOfAnUnknownParameter",
     R"({"name": "x", "intensity": {"type": 2, "sliderSetting": {"end": 100, "variables":
        [{"effectID": "exposure", "setting": "ev", "end": 1}]}}, )" EFFECTS "}",
     {"a.json: error: groups[0]/items[1]/intensity/sliderSetting/variables[0]/setting: expected a "
      "parameter of the effect \"exposure\" (stops), found \"ev\""},
     false},
    {"sliderWithEqualEnds",
     R"({"name": "x", "intensity": {"type": 2, "sliderSetting": {"variables":
        [{"effectID": "exposure", "setting": "stops"}]}}, )" EFFECTS "}",
     {"a.json: warning: groups[0]/items[1]/intensity/sliderSetting: expected different numbers as "
      "\"begin\" and \"end\"",
      "a.json: warning: groups[0]/items[1]/intensity/sliderSetting/variables[0]: expected "
      "different numbers as \"begin\" and \"end\""},
     true},
    {"sameIdAgain",
     R"({"name": "x", "id": "before", )" EFFECTS "}",
     {"a.json: error: groups[0]/items[1]/id: expected an id of its own, found \"before\" again "
      "(first at a.json:1:82)"},
     false},
};

} // namespace

TEST_P(CatalogueItem, isReportedAndDoesNotStopTheOthers)
{
    ParseItem(GetParam().item);

    EXPECT_EQ(Reports(), GetParam().reports);
    const std::string name = GetParam().isLoaded ? " x" : "";
    EXPECT_EQ(target.calls,
              (Lines{"sliders:", "group G: before" + name + " after", "user data: nothing"}));
}

INSTANTIATE_TEST_SUITE_P(CatalogueParser, CatalogueItem, testing::ValuesIn(itemCases),
                         [](const auto& instance) { return std::string(instance.param.name); });

TEST_F(CatalogueParserTest, hasNothingToSayOfAGoodCatalogue)
{
    Parse(R"("defaultSettings": {"exposure": {"title": "Exposure", "begin": -100, "end": 100,
            "variables": [{"setting": "stops", "begin": -2.0, "end": 2.0}]}},
        "groups": [{"name": "Portrait",
            "settings": {"editable": false, "controller": "photo", "appStoreId": {"id": "s"},
                "intensity": {"type": 1, "blendSetting": {"value": 80, "begin": 1, "end": 255}}},
            "items": [{"name": "Soft", "id": "portrait.soft", "popular": true,
                "settings": {"effects": [{"effect": {"id": "exposure", "stops": 0.3}}]}}]}])");

    EXPECT_EQ(Reports(), Lines{});
    EXPECT_EQ(target.calls, (Lines{"sliders: exposure", "group Portrait: Soft controller=photo",
                                   "user data: nothing"}));
}

TEST_F(CatalogueParserTest, mergesTheSlidersOfAllFilesBeforeAnyGroup)
{
    const auto add = [this](const char* file, const char* sliders, const char* group) {
        parser.AddDocument(JsonDocument::Parse(
            QByteArray(R"({"format": "lumetra-catalogue", "version": 1, "defaultSettings": )") +
                sliders + R"(, "groups": {")" + group + R"(": {}}})",
            file));
    };
    add("a.json", R"({"exposure": {"title": "A", "end": 1, "variables":
        [{"setting": "stops", "end": 1}]}, "contrast": {"end": 1, "variables":
        [{"setting": "amount", "end": 1}]}})",
        "first");
    add("b.json", R"({"exposure": {"title": "B", "end": 2, "variables":
        [{"setting": "stops", "end": 2}]}})",
        "second");

    parser.Parse(target, nullptr);

    EXPECT_EQ(target.calls, (Lines{"sliders: exposure contrast",
                                   "group first:", "group second:", "user data: nothing"}));
}

TEST_F(CatalogueParserTest, leavesOutASliderOfAnUnknownParameter)
{
    Parse(R"("defaultSettings": {"exposure": {"end": 1, "variables": [{"setting": "ev", "end": 1}]},
        "brightness": {"end": 1, "variables": [{"setting": "amount", "end": 1}]},
        "contrast": {"end": 1, "variables": [{"setting": "amount", "end": 1}]}, "odd": 4})");

    EXPECT_EQ(Reports(),
              (Lines{"a.json: error: defaultSettings/exposure/variables[0]/setting: expected a "
                     "parameter of the effect \"exposure\" (stops), found \"ev\"",
                     "a.json: error: defaultSettings/brightness/variables[0]/setting: expected a "
                     "known effect, found \"brightness\"",
                     "a.json: error: defaultSettings/odd: expected node, found number"}));
    EXPECT_EQ(target.calls[0], "sliders: contrast");
}

TEST_F(CatalogueParserTest, needsAnEffectForASliderWithoutName)
{
    Parse(R"("defaultSettings": [{"end": 1, "variables": [{"setting": "stops", "end": 1}]}])");

    EXPECT_EQ(Reports(), (Lines{"a.json: error: defaultSettings[0]/variables[0]: expected an "
                                "\"effectID\", found none and no name of the slider"}));
}

TEST_F(CatalogueParserTest, leavesOutAGroupWithWrongSettings)
{
    Parse(R"("groups": [{"name": "A", "settings": {"editable": 1}}, {"name": 2}, {},
        {"name": "B", "settings": {"appStoreId": "x"}},
        {"name": "C", "settings": {"controller": "video"}},
        {"name": "D", "settings": {"intensity": {"type": 9}}},
        {"name": "E", "settings": {"editable": true}}, {"name": "F"}, {"name": "F"}])");

    EXPECT_EQ(Reports(),
              (Lines{"a.json: error: groups[0]/settings/editable: expected bool, found number",
                     "a.json: error: groups[1]/name: expected string, found number",
                     "a.json: error: groups[2]: expected the group's \"name\", found none",
                     "a.json: error: groups[3]/settings/appStoreId: expected node, found string",
                     "a.json: error: groups[4]/settings/controller: expected a kind of preset "
                     "controller (\"\", \"photo\"), found \"video\"",
                     "a.json: error: groups[5]/settings/intensity/type: expected a number from 0 "
                     "to 2, found 9",
                     "a.json: warning: groups[6]/settings/editable: expected false: an editable "
                     "group takes the place of the user's presets",
                     "a.json: warning: groups[8]/name: expected a name of its own, found \"F\" "
                     "again"}));
    EXPECT_EQ(
        target.calls,
        (Lines{"sliders:", "group E: controller=", "group F:", "group F:", "user data: nothing"}));
}

TEST_F(CatalogueParserTest, checksTheGroupsIntensityAgainstEachPresetWithoutOne)
{
    Parse(R"("groups": [{"name": "G", "settings": {"intensity": {"type": 2, "sliderSetting":
            {"end": 1, "variables": [{"effectID": "contrast", "setting": "amount", "end": 1}]}}},
        "items": [{"name": "bad", )" +
          goodEffects + R"(},
            {"name": "own", "intensity": {"type": 0}, )" +
          goodEffects + R"(},
            {"name": "good", "effects": [{"effect": {"id": "contrast"}}]}]}])");

    EXPECT_EQ(Reports(), (Lines{"a.json: error: groups[0]/items[0]: expected the effect "
                                "\"contrast\", which the intensity slider drives, found none in "
                                "the preset"}));
    EXPECT_EQ(target.calls[1], "group G: own good controller=");
}

TEST_F(CatalogueParserTest, blamesThePresetAtWhichTheTargetThrows)
{
    target.poison = "x";

    ParseItem(R"({"name": "x", )" + goodEffects + "}");

    EXPECT_EQ(Reports(), (Lines{"a.json: error: groups[0]/items[1]: poisoned"}));
    EXPECT_EQ(target.calls[1], "group G: before after");
}

TEST_F(CatalogueParserTest, blamesTheGroupWhenNoPresetWasRead)
{
    target.poison = "G";

    ParseItem(R"({"name": "x", )" + goodEffects + "}");

    EXPECT_EQ(Reports(), (Lines{"a.json: error: groups[0]: poisoned"}));
    EXPECT_EQ(target.calls, (Lines{"sliders:", "user data: nothing"}));
}

TEST_F(CatalogueParserTest, handsOverTheUserDataLast)
{
    const auto userData = Zorvik::Brassel::SerializerProperty::Create(
        std::make_shared<Zorvik::Core::Property>(std::string()));
    userData->Set("name", "stored");

    parser.Parse(target, userData);

    EXPECT_EQ(target.calls, (Lines{"sliders:", "user data: stored"}));
}

TEST_F(CatalogueParserTest, refusesWhatIsNoCatalogueOfItsVersion)
{
    const std::vector<std::pair<const char*, const char*>> cases = {
        {"{}", "a.json:1:1: error: format: expected a catalogue, whose \"format\" is "
               "\"lumetra-catalogue\", found none"},
        {R"({"format": "other"})", "a.json:1:12: error: format: expected a catalogue, whose "
                                   "\"format\" is \"lumetra-catalogue\", found \"other\""},
        {R"({"format": 1})", "a.json:1:12: error: format: expected string, found number"},
        {R"({"format": "lumetra-catalogue"})",
         "a.json:1:1: error: version: expected version 1, found none"},
        {R"({"format": "lumetra-catalogue", "version": 2})",
         "a.json:1:44: error: version: expected version 1, found 2: made for a newer program"},
        {R"({"format": "lumetra-catalogue", "version": 0})",
         "a.json:1:44: error: version: expected version 1, found 0"},
        {R"({"format": "lumetra-catalogue", "version": "1"})",
         "a.json:1:44: error: version: expected number, found string"},
    };
    for (const auto& [text, report] : cases) {
        CatalogueParser fresh({""});
        EXPECT_FALSE(fresh.AddDocument(JsonDocument::Parse(text, "a.json")));
        ASSERT_EQ(fresh.GetReports().size(), 1U) << text;
        EXPECT_EQ(fresh.GetReports()[0].ToText(), report);
    }
}

TEST_F(CatalogueParserTest, reportsFilesThatCannotBeRead)
{
    const QTemporaryDir folder;
    const QString missing = folder.filePath(QStringLiteral("missing.json"));
    const QString broken = folder.filePath(QStringLiteral("broken.json"));
    QFile file(broken);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("{\n  \"format\": }");
    file.close();

    EXPECT_FALSE(parser.AddFile(missing));
    EXPECT_FALSE(parser.AddFile(broken));

    const auto& reports = parser.GetReports();
    ASSERT_EQ(reports.size(), 2U);
    EXPECT_EQ(reports[0].ToText(),
              missing.toStdString() + ": error: cannot be read: No such file or directory");
    EXPECT_EQ(reports[1].ToText(), broken.toStdString() + ":2:13: error: syntax error: unexpected "
                                                          "'}'; expected '[', '{', or a literal");
}

TEST_F(CatalogueParserTest, namesLineAndColumn)
{
    parser.AddDocument(JsonDocument::Parse("{\"format\": \"lumetra-catalogue\", \"version\": 1,\n"
                                           "  \"groups\": [\n"
                                           "    7 ] }",
                                           "a.json"));
    parser.Parse(target, nullptr);

    ASSERT_EQ(parser.GetReports().size(), 1U);
    EXPECT_EQ(parser.GetReports()[0].ToText(),
              "a.json:3:5: error: groups[0]: expected node, found number");
}
