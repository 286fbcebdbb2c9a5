// SPDX-License-Identifier: GPL-2.0-or-later
// Valid JSON in catalogues that is hardly what its author meant.
#include "catalogue/CatalogueParser.h"

#include "RecordingTarget.h"
#include "Zorvik/Quindle/EffectRegistry.h"
#include "engine/effects/lut3d/Lut3dEffect.h"
#include "engine/effects/lut3d/Lut3dSettings.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace LumetraHost;
using Zorvik::Quindle::EffectRegistry;
using Lines = std::vector<std::string>;

namespace {

constexpr char Grey[] = R"({"effect": {"id": "saturation", "amount": -100}})";

class CatalogueRemarks : public testing::Test
{
protected:
    void SetUp() override
    {
        EffectRegistry::Register({"saturation", {{"amount", -100, 100, 0, ""}}, {}});
        EffectRegistry::Register({"contrast", {{"amount", -100, 100, 0, ""}}, {}});
        EffectRegistry::Register({Lut3dParameters::EffectId, {{"strength", 0, 100, 100, ""}}, [] {
                                      return Lut3dSettings::Create();
                                  }});
    }

    void TearDown() override
    {
        for (const char* id : {"saturation", "contrast", Lut3dParameters::EffectId})
            EffectRegistry::Unregister(id);
    }

    /// The reports on a catalogue of these members, without line and column.
    Lines Check(const std::string& body)
    {
        CatalogueParser parser({"", "photo"});
        parser.AddDocument(JsonDocument::Parse(
            QByteArray::fromStdString(R"({"format": "lumetra-catalogue", "version": 1, )" + body +
                                      "}"),
            "a.json"));
        target = {};
        parser.Parse(target, nullptr);
        Lines lines;
        for (CatalogueReport report : parser.GetReports()) {
            report.place.line = 0;
            lines.push_back(report.ToText());
        }
        return lines;
    }

    Lines CheckEffects(const std::string& effects)
    {
        return Check(R"("groups": [{"name": "G", "items": [{"name": "x", "effects": [)" + effects +
                     "]}]}]");
    }

    /// Checks a slider with these members and variable; a good one follows.
    Lines CheckSlider(const std::string& members, const std::string& variable)
    {
        return Check(R"("defaultSettings": {"saturation": {)" + members +
                     R"(, "variables": [{"setting": "amount", )" + variable +
                     R"(}]}, "contrast": {"end": 100, "variables": [{"setting": "amount",
                        "end": 100}]}})");
    }

    RecordingTarget target;
};

} // namespace

TEST_F(CatalogueRemarks, onSliderEndsThatAreNoPositions)
{
    const std::string good = R"("begin": 0, "end": 100)";
    EXPECT_EQ(CheckSlider(R"("begin": 0, "end": 3e9)", good),
              (Lines{"a.json: error: defaultSettings/saturation/end: expected a whole number from "
                     "-2147483648 to 2147483647, found 3e9"}));
    EXPECT_EQ(target.calls[0], "sliders: contrast");
    EXPECT_EQ(
        CheckSlider(R"("begin": -1e300, "end": 0)", good),
        (Lines{"a.json: error: defaultSettings/saturation/begin: expected a whole number from "
               "-2147483648 to 2147483647, found -1e300"}));
    EXPECT_EQ(
        CheckSlider(R"("begin": -2147483648, "end": 2147483647)", good),
        (Lines{"a.json: error: defaultSettings/saturation/end: expected \"begin\" and \"end\" "
               "at most 2147483647 apart, found 4294967295.0"}));
    EXPECT_EQ(CheckSlider(R"("begin": 0, "end": 2147483647)", good), Lines{});
    EXPECT_EQ(CheckSlider(R"("begin": 0, "end": 99.5)", good),
              (Lines{"a.json: warning: defaultSettings/saturation/end: expected a whole number, "
                     "found 99.5"}));
    EXPECT_EQ(target.calls[0], "sliders: saturation contrast");
}

TEST_F(CatalogueRemarks, onSlidersThatLeaveTheRangeOfTheirParameter)
{
    EXPECT_EQ(CheckSlider(R"("end": 100)", R"("begin": -100, "end": 150)"),
              (Lines{"a.json: warning: defaultSettings/saturation/variables[0]/end: expected a "
                     "number from -100.0 to 100.0, found 150.0"}));
    EXPECT_EQ(target.calls[0], "sliders: saturation contrast");
    EXPECT_EQ(CheckSlider(R"("end": 100)", R"("begin": -100, "end": 39900)"),
              (Lines{"a.json: error: defaultSettings/saturation/variables[0]: expected one step of "
                     "the slider to move the parameter by at most 200.0, found 400.0",
                     "a.json: warning: defaultSettings/saturation/variables[0]/end: expected a "
                     "number from -100.0 to 100.0, found 39900.0"}));
    EXPECT_EQ(target.calls[0], "sliders: contrast");
    EXPECT_EQ(CheckSlider(R"("end": 1)", R"("begin": -100, "end": 100)"), Lines{});
}

TEST_F(CatalogueRemarks, onAnEffectThatStandsThereTwice)
{
    EXPECT_EQ(
        CheckEffects(std::string(Grey) + ", " + Grey),
        (Lines{"a.json: warning: groups[0]/items[0]/effects[1]/effect/id: expected each effect "
               "once, found \"saturation\" again: sliders move the first one only"}));
    EXPECT_EQ(target.calls[1], "group G: x");
}

TEST_F(CatalogueRemarks, onATableThatIsOnlyNamedOrMissing)
{
    EXPECT_EQ(CheckEffects(R"({"effect": {"id": "lut3d", "file": "film.cube"}})"),
              (Lines{"a.json: error: groups[0]/items[0]/effects[0]/effect/file: expected the table "
                     "itself, as \"curve\" or \"cube\", found the name of a file"}));
    EXPECT_EQ(CheckEffects(R"({"effect": {"id": "lut3d", "strength": 50}})"),
              (Lines{"a.json: warning: groups[0]/items[0]/effects[0]/effect: expected a table, "
                     "\"curve\", \"cube\" or \"file\", found none: the effect changes nothing"}));
}

TEST_F(CatalogueRemarks, onAnIntensityThatMovesWhatAnExtraSliderMoves)
{
    const std::string intensity =
        R"("intensity": {"type": 2, "sliderSetting": {"end": 100, "variables": [{"effectID":
           "saturation", "setting": "amount", "end": -100}]}})";
    const auto check = [&](const std::string& slider, const std::string& group,
                           const std::string& item) {
        return Check(R"("defaultSettings": {"colour": {"end": 100, "variables": [{"effectID": ")" +
                     slider + R"(", "setting": "amount", "end": 100}]}}, "groups": [{"name": "G",
                        "settings": {)" +
                     group + R"(}, "items": [{"name": "x", )" + item + R"("effects": [)" + Grey +
                     "]}]}]");
    };
    const Lines expected{
        "a.json: warning: groups[0]/items[0]: expected an intensity on parameters without an extra "
        "slider, found \"amount\" of \"saturation\", which \"colour\" moves too: that slider does "
        "nothing"};
    EXPECT_EQ(check("saturation", "", intensity + ", "), expected);
    EXPECT_EQ(check("saturation", intensity, ""), expected);
    EXPECT_EQ(check("saturation", intensity, R"("intensity": {"type": 0}, )"), Lines{});
    EXPECT_EQ(check("contrast", "", intensity + ", "), Lines{});
}

TEST_F(CatalogueRemarks, onTheSlidersThatAPresetListsItself)
{
    const auto check = [&](const std::string& members) {
        return Check(
            std::string(R"("groups": [{"name": "G", "items": [{"name": "x", "effects": [)") + Grey +
            R"(], "sliders": [{"title": "Colour", "end": 100, "variables": [)" + members +
            "]}]}]}]");
    };

    EXPECT_EQ(check(R"({"effectID": "saturation", "setting": "amount", "end": -100})"), Lines());
    const Lines unknown = check(R"({"effectID": "saturation", "setting": "amuont", "end": -100})");
    ASSERT_EQ(unknown.size(), 1U);
    EXPECT_EQ(unknown[0].substr(0, 66),
              "a.json: error: groups[0]/items[0]/sliders[0]/variables[0]/setting:");
}

TEST_F(CatalogueRemarks, onAnIntensityThatBeginsOutsideItsSlider)
{
    const auto check = [this](const char* amount) {
        return Check(std::string(R"("groups": [{"name": "G", "items": [{"name": "x",
            "intensity": {"type": 2, "sliderSetting": {"end": 50, "variables": [{"effectID":
                "saturation", "setting": "amount", "end": -50}]}},
            "settings": {"effects": [{"effect": {"id": "saturation", "amount": )") +
                     amount + "}}]}}]}]");
    };
    for (const char* amount : {"0", "-50", "-25", "-50.4", "0.4"})
        EXPECT_EQ(check(amount), Lines{}) << amount;
    EXPECT_EQ(check("-51"),
              (Lines{"a.json: warning: groups[0]/items[0]: expected \"amount\" of \"saturation\" "
                     "from -50.0 to 0.0, where the intensity slider moves it, found -51.0: the "
                     "slider starts at its end"}));
    EXPECT_EQ(check("20").size(), 1U);
}

TEST_F(CatalogueRemarks, onAResourceOutsideItsFolder)
{
    const auto check = [this](const char* resource) {
        return Check(
            std::string(R"("groups": [{"name": "G", "items": [{"name": "x", "resource": ")") +
            resource + R"("}]}])");
    };
    EXPECT_EQ(check("film/x.json"), Lines{});
    EXPECT_EQ(check("../x.json"),
              (Lines{"a.json: warning: groups[0]/items[0]/resource: expected a file inside the "
                     "group's folder of resources, found \"../x.json\""}));
    EXPECT_EQ(check("/etc/passwd").size(), 1U);
}

TEST_F(CatalogueRemarks, onNamesInOtherLanguages)
{
    const auto check = [this](const char* group, const char* item) {
        return Check(std::string(R"("groups": [{"name": "G", "names": )") + group +
                     R"(, "items": [{"name": "x", "names": )" + item + R"(, "effects": [)" + Grey +
                     "]}]}]");
    };
    EXPECT_EQ(check(R"({"de": "Gruppe", "pt-BR": "Grupo"})", "{}"), Lines{});
    EXPECT_EQ(target.calls[1], "group G: x");
    EXPECT_EQ(check("{}", R"({"de": 1})"),
              (Lines{"a.json: error: groups[0]/items[0]/names/de: expected string, found number"}));
    EXPECT_EQ(target.calls[1], "group G:");
    EXPECT_EQ(check("{}", R"({"de": " "})"),
              (Lines{"a.json: error: groups[0]/items[0]/names/de: expected a name that is not "
                     "empty"}));
    EXPECT_EQ(check("{}", R"("Herbst")"),
              (Lines{"a.json: error: groups[0]/items[0]/names: expected node, found string"}));
    EXPECT_EQ(check("{}", R"({"German": "Herbst"})"),
              (Lines{"a.json: warning: groups[0]/items[0]/names/German: expected a language, such "
                     "as \"de\", \"pt-BR\" or \"zh-Hant\", found \"German\": no program asks for "
                     "it"}));
    EXPECT_EQ(target.calls[1], "group G: x");
    EXPECT_EQ(check("{}", R"({"de": "a\u001b"})").size(), 1U);
    EXPECT_EQ(check("[]", "{}"),
              (Lines{"a.json: error: groups[0]/names: expected node, found collection"}));
    EXPECT_EQ(target.calls.size(), 2U); // sliders and user data, no group
}

TEST_F(CatalogueRemarks, onNamesWithControlCharacters)
{
    EXPECT_EQ(Check(R"("groups": [{"name": "G\n", "items": [{"name": "x\u001b[1m", "id": "\u009b",
                    "effects": [)" +
                    std::string(Grey) + "]}]}]"),
              (Lines{"a.json: warning: groups[0]/name: expected a text without control characters, "
                     "found \"G\\n\"",
                     "a.json: warning: groups[0]/items[0]/name: expected a text without control "
                     "characters, found \"x\\x1b[1m\"",
                     "a.json: warning: groups[0]/items[0]/id: expected a text without control "
                     "characters, found \"\\x9b\""}));
}
