// SPDX-License-Identifier: GPL-2.0-or-later
#include "CliTest.h"

using testing::HasSubstr;
using testing::IsEmpty;

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
    EXPECT_THAT(result.messages, HasSubstr("expected at least one catalogue or LUT file"));
}

TEST_F(CliTest, checkSurvivesExtremeNesting)
{
    WriteFile("deep.json", QByteArray("{\"a\":") + QByteArray(100'000, '['));

    const CliResult result = RunPlain({QStringLiteral("check"), QStringLiteral("deep.json")});

    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.output, "deep.json:1:69: error: expected nesting of at most 64 levels\n");
}
