// SPDX-License-Identifier: GPL-2.0-or-later
#include "CliTest.h"
#include "Places.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>

using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

TEST_F(CliTest, checksAGoodCatalogueSilently)
{
    const CliResult result = RunPlain({QStringLiteral("check"), QStringLiteral("looks.json")});

    EXPECT_EQ(result.code, 0);
    EXPECT_THAT(result.output, IsEmpty());
    EXPECT_THAT(result.messages, IsEmpty());
}

TEST_F(CliTest, checksEachFileAndNamesThePlaces)
{
    WriteFile("broken.json", "{ \"format\": \"lumetra-catalogue\",\n \"version\": 1,,\n}");
    WriteFile("note.json", R"({"format": "lumetra-catalogue", "version": 1, "author": "x"})");

    const CliResult result = RunPlain({QStringLiteral("check"), QStringLiteral("looks.json"),
                                       QStringLiteral("broken.json"), QStringLiteral("note.json"),
                                       QStringLiteral("missing.json")});

    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.output,
              "broken.json:2:15: error: syntax error: unexpected ','; expected string literal\n"
              "note.json:1:57: note: author: this key is not used\n"
              "missing.json: error: cannot be read: No such file or directory\n");
    EXPECT_EQ(RunPlain({QStringLiteral("check"), QStringLiteral("note.json")}).code, 0);
}

TEST_F(CliTest, checkNeedsAFile)
{
    const CliResult result = RunPlain({QStringLiteral("check")});

    EXPECT_EQ(result.code, 2);
    EXPECT_THAT(result.messages, HasSubstr("expected at least one file"));
}

TEST_F(CliTest, checkSurvivesExtremeNesting)
{
    WriteFile("deep.json", QByteArray("{\"a\":") + QByteArray(100'000, '['));

    const CliResult result = RunPlain({QStringLiteral("check"), QStringLiteral("deep.json")});

    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.output, "deep.json:1:69: error: expected nesting of at most 64 levels\n");
}

TEST_F(CliTest, checksAGoodStoreSilently)
{
    WriteFile("own.json", R"({"format": "lumetra-user-presets", "version": 1,
"UserPresets": {"items": [{"name": "Mine", "id": "a", "popular": false,
  "effects": [{"effect": {"id": "exposure", "stops": 0.5}}]}]},
"Favourites": [{"group": "Looks", "id": "bright"}]})");

    const CliResult result = RunPlain({QStringLiteral("check"), QStringLiteral("own.json")});

    EXPECT_EQ(result.code, 0);
    EXPECT_THAT(result.output, IsEmpty());
}

TEST_F(CliTest, checksAStoreAndNamesThePlaces)
{
    WriteFile("own.json", R"({"format": "lumetra-user-presets", "version": 1,
"UserPresets": {"items": [
 {"name": "Mine", "popular": "yes"},
 {"name": "Other", "effects": [{"effect": {"id": "exposure", "stop": 1}}]},
 7]},
"Favourites": [{"group": 1, "id": "a"}, {"group": "Looks"}],
"colour": "red"})");

    const CliResult result = RunPlain({QStringLiteral("check"), QStringLiteral("own.json")});

    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.output,
              "own.json:3:2: warning: UserPresets/items[0]: expected at least one effect, found "
              "none\n"
              "own.json:3:30: error: UserPresets/items[0]/popular: expected bool, found string\n"
              "own.json:4:70: error: UserPresets/items[1]/effects[0]/effect/stop: expected a "
              "parameter of the effect \"exposure\" (stops), found \"stop\", did you mean "
              "\"stops\"?\n"
              "own.json:5:2: error: UserPresets/items[2]: expected node, found number\n"
              "own.json:6:26: error: Favourites[0]/group: expected string, found number\n"
              "own.json:6:41: warning: Favourites[1]: expected the \"id\" of a preset, found none\n"
              "own.json:7:11: note: colour: this key is not used\n");
}

TEST_F(CliTest, knowsAStoreOfTheFirstVersionByItsMembers)
{
    WriteFile("old.json", R"({"UserPresets": {"items": "none"}, "Favourites": {}})");

    const CliResult result = RunPlain({QStringLiteral("check"), QStringLiteral("old.json")});

    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.output, "old.json:1:27: error: UserPresets/items: expected collection, found "
                             "string\n"
                             "old.json:1:50: error: Favourites: expected collection, found "
                             "node\n");
}

TEST_F(CliTest, checksAListOfItemsOfUnknownOriginAsACatalogue)
{
    WriteFile("notes.json", R"({"items": ["milk"]})");

    const CliResult result = RunPlain({QStringLiteral("check"), QStringLiteral("notes.json")});

    EXPECT_EQ(result.code, 1);
    EXPECT_THAT(result.output, StartsWith("notes.json"));
    EXPECT_THAT(result.output, HasSubstr("lumetra-catalogue"));
}

TEST_F(CliTest, sortsTheRemarksOfCataloguesAndStoresByFile)
{
    WriteFile("own.json", R"({"format": "lumetra-user-presets", "a": 1, "version": 3})");
    WriteFile("note.json", R"({"format": "lumetra-catalogue", "version": 1, "author": "x"})");

    const CliResult result = RunPlain({QStringLiteral("check"), QStringLiteral("note.json"),
                                       QStringLiteral("own.json"), QStringLiteral("none.json")});

    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.output,
              "note.json:1:57: note: author: this key is not used\n"
              "own.json:1:41: note: a: this key is not used\n"
              "own.json:1:55: warning: version: expected version 2, found a newer one: it can be "
              "read but not changed\n"
              "none.json: error: cannot be read: No such file or directory\n");
}

TEST_F(CliTest, refusesWhatIsNoPlainFileAtOnce)
{
    for (const char* name : {"pipe.json", "pipe.cube", "pipe.cc", "pipe.png"})
        ASSERT_EQ(::mkfifo(QFile::encodeName(Path(name)).constData(), 0600), 0);
    for (const char* name : {"folder.json", "folder.cube", "folder.png"})
        ASSERT_TRUE(QDir(folder.path()).mkdir(QLatin1String(name)));
    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/zero"), Path("zero.cube")));

    const auto expectRefusal = [this](const char* command, const char* name) {
        const CliResult result = RunPlain(Words(command) + Words(name));
        EXPECT_THAT(result.output + result.messages, HasSubstr(std::string(name) + ": "))
            << command;
        EXPECT_THAT(result.output + result.messages, HasSubstr("expected a plain file")) << command;
        return result.code;
    };
    for (const char* name : {"pipe.cube", "pipe.cc", "pipe.png", "zero.cube"})
        for (const char* command : {"check", "import"})
            EXPECT_EQ(expectRefusal(command, name), 1) << command << name;
    for (const char* command : {"check", "list --catalogue"})
        EXPECT_EQ(expectRefusal(command, "pipe.json"), 1) << command;
    expectRefusal("list --store", "pipe.json");
    for (const char* name : {"folder.json", "folder.cube", "folder.png"})
        EXPECT_EQ(RunPlain(Words("check") + Words(name)).output,
                  std::string(name) + ": error: expected a file, found a folder\n");
    EXPECT_EQ(RunPlain(Words("check /dev/null")).output,
              "/dev/null: error: expected a plain file\n");
}

TEST_F(CliTest, checksIdsAgainstTheCataloguesThatAreReadAnyway)
{
    const char* const taken = R"({"format": "lumetra-catalogue", "version": 1, "groups": [
        {"name": "My looks", "items": [{"name": "X", "id": "portrait.soft-light",
            "effects": [{"effect": {"id": "exposure", "stops": 1}}]}]}]})";
    WriteFile("mine.json", taken);
    const std::string expected = "error: groups[0]/items[0]/id: expected an id of its own, found "
                                 "\"portrait.soft-light\" again (first at ";

    EXPECT_THAT(RunPlain(Words("check mine.json")).output, HasSubstr(expected));
    EXPECT_THAT(RunPlain(Words("list --catalogue mine.json")).messages, HasSubstr(expected));
    EXPECT_THAT(
        WithoutTableNotes(RunPlain({QStringLiteral("check"),
                                    QStringLiteral(LUMETRA_SOURCE_CATALOGUE "/presets.json")})
                              .output),
        IsEmpty());
}
