// SPDX-License-Identifier: GPL-2.0-or-later
#include "CliTest.h"
#include "Zorvik/Brassel/ISerializer.h"
#include "storage/JsonDocument.h"

using testing::HasSubstr;
using testing::StartsWith;

namespace {

constexpr char Seasons[] = R"({"format": "lumetra-catalogue", "version": 1, "groups": [
    {"name": "Seasons", "names": {"de": "Jahreszeiten"}, "items": [
        {"name": "Autumn", "names": {"de": "Herbst"}, "id": "autumn",
         "effects": [{"effect": {"id": "exposure", "stops": 0.5}}]},
        {"name": "Winter", "names": {"de": "Eiszeit"}, "id": "winter",
         "effects": [{"effect": {"id": "exposure", "stops": 1}}]}]}]})";

} // namespace

TEST_F(CliTest, listsPresetsWithIntensityAndSliders)
{
    const CliResult result = Run({QStringLiteral("list")});

    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.messages, "");
    EXPECT_THAT(result.output,
                StartsWith("Test looks\n"
                           "  Test Bright  [test.bright]  intensity 80 (1 to 100), blending  "
                           "popular\n"
                           "      exposure 50 (-100 to 100)\n"
                           "  Test Grey  [test.grey]  intensity 80 (1 to 100), blending\n"
                           "  Test Slide  [test.slide]  intensity 25 (0 to 50), slider\n"
                           "  Test Plain  [test.plain]\n"));
}

TEST_F(CliTest, listsTheSameAsJson)
{
    const CliResult result = Run({QStringLiteral("list"), QStringLiteral("--json")});

    ASSERT_EQ(result.code, 0);
    const auto groups =
        LumetraHost::JsonDocument::Parse(QByteArray::fromStdString(result.output), "list")
            .GetRoot()
            ->GetCollection("groups");
    ASSERT_EQ(groups->GetCount(), 2U); // the catalogue's and the user's
    const auto looks = groups->GetElement(0);
    EXPECT_EQ(looks->Get("name", ""), "Test looks");
    EXPECT_FALSE(looks->Get("editable", true));
    EXPECT_TRUE(groups->GetElement(1)->Get("editable", false));
    const auto bright = looks->GetCollection("presets")->GetElement(0);
    EXPECT_EQ(bright->Get("id", ""), "test.bright");
    EXPECT_TRUE(bright->Get("popular", false));
    EXPECT_EQ(bright->GetNode("intensity")->Get("kind", ""), "blending");
    EXPECT_EQ(bright->GetNode("intensity")->Get("value", 0), 80);
    EXPECT_EQ(bright->GetCollection("sliders")->GetElement(0)->Get("title", ""), "Brightness");
    const auto plain = looks->GetCollection("presets")->GetElement(3);
    EXPECT_EQ(plain->GetNode("intensity")->Get("kind", ""), "none");
    EXPECT_FALSE(plain->GetNode("intensity")->Has("value"));
}

TEST_F(CliTest, listsNothingWhenANamedCatalogueCannotBeUsed)
{
    const CliResult result = RunPlain(
        {QStringLiteral("list"), QStringLiteral("--catalogue"), QStringLiteral("missing.json")});

    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.output, "");
    EXPECT_THAT(result.messages,
                HasSubstr("missing.json: error: cannot be read: No such file or directory"));
}

TEST_F(CliTest, listsWhatIsGoodInACatalogueWithErrors)
{
    WriteFile("odd.json", R"({"format": "lumetra-catalogue", "version": 1, "groups": [
        {"name": "Odd", "items": [
            {"name": "Odd One", "effects": [{"effect": {"id": "exposre"}}]},
            {"name": "Good One", "effects": [{"effect": {"id": "exposure"}}]}]}]})");

    const CliResult result = RunPlain(
        {QStringLiteral("list"), QStringLiteral("--catalogue"), QStringLiteral("odd.json")});

    EXPECT_EQ(result.code, 0);
    EXPECT_THAT(result.output, HasSubstr("Good One"));
    EXPECT_THAT(result.output, testing::Not(HasSubstr("Odd One")));
    EXPECT_THAT(result.messages,
                HasSubstr("odd.json:3:63: error: groups[0]/items[0]/effects[0]/effect/id: expected "
                          "a known effect, found \"exposre\", did you mean \"exposure\"?"));
}

TEST_F(CliTest, goesOnWithAnIntensityOutOfItsRange)
{
    WriteFile("odd.json", R"({"format": "lumetra-catalogue", "version": 1, "groups": [
        {"name": "Odd", "items": [{"name": "Odd One", "id": "odd",
            "intensity": {"type": 1, "blendSetting": {"value": 300, "begin": 0, "end": 400}},
            "effects": [{"effect": {"id": "exposure", "stops": 1}}]}]}]})");
    WritePhoto("a.png");
    const QStringList options = Words("--catalogue odd.json --store presets.json");

    const CliResult listed = Run(Words("list") + options);
    EXPECT_EQ(listed.code, 0);
    EXPECT_THAT(listed.output, HasSubstr("  Odd One  [odd]  intensity 100 (1 to 100), blending\n"));
    EXPECT_THAT(
        listed.messages,
        HasSubstr("odd.json:3:64: warning: groups[0]/items[0]/intensity/blendSetting/value: "
                  "expected a number from 1 to 100, found 300\n"));
    for (const char* line :
         {"apply a.png -p test.bright -o bright.png",
          "apply a.png -p odd -o odd.png --metadata none", "sheet a.png -o sheet.png",
          "save test.grey Mine", "save odd Yours", "export-lut -p odd -o odd.cube",
          "apply a.png -p Yours -o yours.png --metadata none"}) {
        const CliResult result = Run(Words(line) + options);
        EXPECT_EQ(result.code, 0) << line << '\n' << result.messages;
    }
    EXPECT_EQ(ReadFile("odd.png"), ReadFile("yours.png"));
}

TEST_F(CliTest, listsNamesInTheUsersLanguageAndTheSameJsonInEveryOne)
{
    WriteFile("looks.json", Seasons);
    const QStringList list{QStringLiteral("list")};
    EXPECT_THAT(RunIn("de_DE.UTF-8", list).output,
                StartsWith("Jahreszeiten\n  Herbst  [autumn]\n"));
    EXPECT_THAT(RunIn("fr_FR.UTF-8", list).output, StartsWith("Seasons\n  Autumn  [autumn]\n"));
    const QStringList json{QStringLiteral("list"), QStringLiteral("--json")};
    const CliResult german = RunIn("de_DE.UTF-8", json);
    EXPECT_EQ(german.output, Run(json).output);
    EXPECT_THAT(german.output, HasSubstr("\"name\": \"Autumn\""));
    EXPECT_THAT(german.output, HasSubstr("\"de\": \"Herbst\""));
}

TEST_F(CliTest, findsAPresetByItsNameInAnyLanguageAndRecordsTheCataloguesName)
{
    WriteFile("looks.json", Seasons);
    WritePhoto("photo.png");
    for (const char* preset : {"autumn", "Autumn", "Herbst", "herbst"}) {
        const QStringList apply{QStringLiteral("apply"),    QStringLiteral("photo.png"),
                                QStringLiteral("--preset"), QLatin1String(preset),
                                QStringLiteral("-o"),       QStringLiteral("%1.png")};
        for (const char* locale : {"de_DE.UTF-8", "C.UTF-8"}) {
            QStringList arguments = apply;
            const QString output = QLatin1String(preset) + QLatin1String(locale);
            arguments.last() = output + QStringLiteral(".png");
            const CliResult result = RunIn(locale, arguments);
            EXPECT_EQ(result.code, 0) << preset << ", " << locale << ": " << result.messages;
            const QByteArray written = ReadFile((output + QStringLiteral(".png")).toUtf8());
            EXPECT_TRUE(written.contains("Autumn")) << preset << ", " << locale;
            EXPECT_FALSE(written.contains("Herbst")) << preset << ", " << locale;
        }
    }
    EXPECT_THAT(RunIn("de_DE.UTF-8", Words("apply photo.png --preset Herbts -o x.png")).messages,
                HasSubstr("meinten Sie \"Herbst\"?"));
    EXPECT_THAT(RunIn("de_DE.UTF-8", Words("remove Herbst")).messages,
                HasSubstr("gefunden \"Herbst\" aus der Gruppe \"Jahreszeiten\""));
}
