// SPDX-License-Identifier: GPL-2.0-or-later
#include "CliTest.h"

using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

TEST_F(CliTest, showsHelpAndVersionOnTheOutput)
{
    for (const char* line : {"--help", "-h", "--version", "-v", "list --help", "apply --help",
                             "sheet -h", "check --help"}) {
        const CliResult result = RunPlain(Words(line));
        EXPECT_EQ(result.code, 0) << line;
        EXPECT_THAT(result.output, HasSubstr("lumetra-presets")) << line;
        EXPECT_THAT(result.messages, IsEmpty()) << line;
    }
    EXPECT_THAT(RunPlain(Words("apply --help")).output,
                StartsWith("Usage: lumetra-presets apply [options] PHOTO..."));
}

TEST_F(CliTest, refusesACommandLineWithoutOrWithAnUnknownCommand)
{
    const CliResult none = RunPlain({});
    EXPECT_EQ(none.code, 2);
    EXPECT_THAT(none.output, IsEmpty());
    EXPECT_THAT(none.messages, StartsWith("Usage: lumetra-presets COMMAND"));

    const CliResult unknown = RunPlain(Words("aply photo.jpg"));
    EXPECT_EQ(unknown.code, 2);
    EXPECT_THAT(unknown.messages, StartsWith("lumetra-presets: expected a command, found \"aply\", "
                                             "did you mean \"apply\"?\n"));
}

TEST_F(CliTest, refusesUnknownOptionsAndMissingValues)
{
    const CliResult unknown = RunPlain(Words("list --jsn"));
    EXPECT_EQ(unknown.code, 2);
    EXPECT_THAT(unknown.messages, HasSubstr("jsn"));
    EXPECT_THAT(unknown.messages, HasSubstr("\"lumetra-presets list --help\" tells more"));

    EXPECT_EQ(RunPlain(Words("apply a.png --preset")).code, 2);
}
