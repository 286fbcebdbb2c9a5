// SPDX-License-Identifier: GPL-2.0-or-later
// apply with the standard input and output.
#include "CliTest.h"

#include "photo/PhotoReader.h"

using LumetraHost::Bytes;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class ApplyPipesTest : public CliTest
{
protected:
    CliResult Apply(const char* line, const QByteArray& input = {}) const
    {
        return RunWithInput(Words("apply -p test.bright") + Words(line), input);
    }
};

} // namespace

TEST_F(ApplyPipesTest, readsThePhotoFromTheStandardInput)
{
    WritePhoto("a.jpg");
    ASSERT_EQ(Apply("a.jpg -o file.png").code, 0);

    const CliResult result = Apply("- -o {name}-{preset}.png", ReadFile("a.jpg"));

    EXPECT_EQ(result.code, 0) << result.messages;
    EXPECT_EQ(result.output, Path("stdin-Test Bright.png").toStdString() + "\n");
    EXPECT_EQ(ReadFile("stdin-Test Bright.png"), ReadFile("file.png"));
}

TEST_F(ApplyPipesTest, writesThePhotoToTheStandardOutputAndNothingElse)
{
    WritePhoto("a.png");
    ASSERT_EQ(Apply("a.png -o file.png").code, 0);

    const CliResult named = Apply("a.png -o -");
    const CliResult piped = Apply("- -o -", ReadFile("a.png"));

    EXPECT_EQ(named.code, 0) << named.messages;
    EXPECT_EQ(QByteArray::fromStdString(named.output), ReadFile("file.png"));
    EXPECT_EQ(piped.output, named.output);
    EXPECT_THAT(named.messages + piped.messages, IsEmpty());
    EXPECT_FALSE(Exists("-"));
}

TEST_F(ApplyPipesTest, keepsTheFormatOfThePhotoThatItWrites)
{
    for (const char* name : {"a.jpg", "a.png", "a.tif"}) {
        WritePhoto(name);
        const QByteArray written =
            QByteArray::fromStdString(Apply("- -o -", ReadFile(name)).output);
        EXPECT_EQ(written.left(3), ReadFile(name).left(3)) << name;
    }
}

TEST_F(ApplyPipesTest, takesResultsFromAPipe)
{
    WritePhoto("a.png");
    const CliResult first = Apply("a.png -o -");

    const CliResult second = Apply("- -o -", QByteArray::fromStdString(first.output));

    EXPECT_EQ(second.code, 0) << second.messages;
    EXPECT_FALSE(second.output.empty());
}

TEST_F(ApplyPipesTest, saysWhatIsWrongWithAPhotoFromAPipe)
{
    const CliResult empty = Apply("- -o -");
    EXPECT_EQ(empty.code, 1);
    EXPECT_THAT(empty.output, IsEmpty());
    EXPECT_THAT(empty.messages, HasSubstr("lumetra-presets: stdin: the file is empty"));

    const CliResult text = Apply("- -o out.png", "no photo");
    EXPECT_EQ(text.code, 1);
    EXPECT_THAT(text.messages, HasSubstr("stdin: expected a JPEG"));
    EXPECT_FALSE(Exists("out.png"));

    const CliResult missing = Apply("none.png -o -");
    EXPECT_EQ(missing.code, 1);
    EXPECT_THAT(missing.messages, HasSubstr("none.png: there is no such file"));
}

TEST_F(ApplyPipesTest, neverReplacesAFileByAPhotoFromAPipeUnlessTold)
{
    WritePhoto("a.png");
    WriteFile("out.png", "precious");

    const CliResult refused = Apply("- -o out.png", ReadFile("a.png"));
    EXPECT_EQ(refused.code, 1);
    EXPECT_EQ(ReadFile("out.png"), "precious");
    EXPECT_EQ(Apply("- -o out.png --overwrite", ReadFile("a.png")).code, 0);
    EXPECT_NE(ReadFile("out.png"), "precious");
}

TEST_F(ApplyPipesTest, refusesWhatOnePipeCannotTake)
{
    WritePhoto("a.png");
    WritePhoto("b.png");
    const std::vector<std::pair<const char*, const char*>> cases = {
        {"a.png b.png -o -", "--output -: expected one photo and one look, found more"},
        {"a.png --group x -o -", "--output -: expected one photo and one look, found more"},
        {"a.png --json -o -", "--output -: expected no --json, which needs the standard output"},
        {"a.png --dry-run -o -", "--output -: expected no --dry-run"},
        {"- --edits -o -", "--edits: expected the name of a photo, found the standard input"},
        {"- --group x -o {preset}.png", "expected one look for the standard input, found a series"},
        {"- --favourites -o {preset}.png",
         "expected one look for the standard input, found a series"},
        {"- -o {date}.png",
         "--output: expected no {date}, which the standard input does not have"}};
    for (const auto& [line, message] : cases) {
        const CliResult result = Apply(line);
        EXPECT_EQ(result.code, 2) << line;
        EXPECT_THAT(result.output, IsEmpty()) << line;
        EXPECT_THAT(result.messages, HasSubstr(message)) << line;
    }
}
