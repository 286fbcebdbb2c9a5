// SPDX-License-Identifier: GPL-2.0-or-later
#include "CliTest.h"

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

const QString German = QStringLiteral("de_DE.UTF-8");

} // namespace

TEST_F(CliTest, speaksTheLanguageOfTheLocale)
{
    const QStringList help{QStringLiteral("help")};
    const auto isGerman = [&](const std::map<const char*, QString>& variables) {
        return RunWith(variables, help).output.find("Befehle:") != std::string::npos;
    };
    const QString none;
    EXPECT_TRUE(isGerman({{"LC_ALL", German}}));
    EXPECT_TRUE(isGerman({{"LC_ALL", none}, {"LANG", German}}));
    EXPECT_TRUE(
        isGerman({{"LC_ALL", none}, {"LC_MESSAGES", German}, {"LANG", QStringLiteral("C")}}));
    EXPECT_TRUE(isGerman(
        {{"LC_ALL", QStringLiteral("en_GB.UTF-8")}, {"LANGUAGE", QStringLiteral("fr:de:en")}}));
    EXPECT_FALSE(isGerman({{"LC_ALL", German}, {"LANGUAGE", QStringLiteral("en:de")}}));
    EXPECT_FALSE(isGerman({{"LC_ALL", QStringLiteral("fr_FR.UTF-8")}}));
    EXPECT_FALSE(
        isGerman({{"LC_ALL", QStringLiteral("C.UTF-8")}, {"LANGUAGE", QStringLiteral("de")}}))
        << "as scripts ask for English";
    EXPECT_FALSE(isGerman({{"LC_ALL", none}, {"LANG", none}}));
}

TEST_F(CliTest, saysEverythingOfTheCommandLineInGerman)
{
    EXPECT_THAT(RunIn("de_DE.UTF-8", Words("apply --help")).output,
                StartsWith("Aufruf: lumetra-presets apply [Optionen] PHOTO..."));
    EXPECT_THAT(RunIn("de_DE.UTF-8", Words("aply")).messages,
                StartsWith("lumetra-presets: erwartet wurde ein Befehl, gefunden \"aply\""));
    EXPECT_THAT(RunIn("de_DE.UTF-8", Words("list extra")).messages,
                HasSubstr("\"lumetra-presets list --help\" sagt mehr"));
    WritePhoto("a.png");
    WritePhoto("b.png");
    const CliResult result =
        RunIn("de_DE.UTF-8", Words("apply a.png b.png -p test.bright -o out/{name}.png"));
    EXPECT_EQ(result.messages, "lumetra-presets: 2 geschrieben\n");
}

TEST_F(CliTest, speaksGermanInEveryCommand)
{
    for (const char* command :
         {"apply", "list", "show", "sheet", "check", "import", "export", "export-lut", "save",
          "rename", "remove", "favourite", "completion", "help"}) {
        const CliResult help =
            RunWith({{"LC_ALL", German}}, {QLatin1String(command), QStringLiteral("-h")});
        EXPECT_EQ(help.code, 0) << command;
        for (const char* english : {" the ", "Shows", "Writes", " of ", "Usage", "Options:"})
            EXPECT_THAT(help.output, Not(HasSubstr(english))) << command;
    }
    EXPECT_THAT(RunIn("de_DE.UTF-8", Words("list")).output,
                HasSubstr("[test.bright]  Intensität 80 (1 bis 100), Überblendung  beliebt\n"));
    EXPECT_THAT(RunIn("de_DE.UTF-8", Words("save test.grey Meins --store s.json")).output,
                HasSubstr("\"Meins\" aus \"Test Grey\" gespeichert\n"));
}
