// SPDX-License-Identifier: GPL-2.0-or-later
// Which photos apply takes: folders, lists, and results of an earlier run.
#include "CliTest.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <cstdio>

#include <unistd.h>

using testing::HasSubstr;
using testing::Not;

namespace {

class ApplyInputsTest : public CliTest
{
protected:
    CliResult Apply(const QStringList& arguments) const
    {
        return Run(QStringList{QStringLiteral("apply"), QStringLiteral("-p"),
                               QStringLiteral("test.bright")} +
                   arguments);
    }
    CliResult Apply(const char* line) const { return Apply(Words(line)); }

    /// The outputs below the folder "out", in their order.
    std::vector<std::string> Outputs(const CliResult& result) const
    {
        const QString start = Path("out/");
        std::vector<std::string> names;
        for (const QString& line :
             QString::fromStdString(result.output).split(QLatin1Char('\n'), Qt::SkipEmptyParts))
            names.push_back((line.startsWith(start) ? line.mid(start.size()) : line).toStdString());
        return names;
    }
};

} // namespace

TEST_F(ApplyInputsTest, takesThePhotosOfAFolderByName)
{
    for (const char* name : {"in/b.png", "in/a.jpg", "in/sub/c.png", "in/.hidden.png"})
        WritePhoto(name);
    WriteFile("in/notes.txt", "no photo");

    const CliResult result = Apply("in -o out/{name}.{ext}");

    EXPECT_EQ(result.code, 0) << result.messages;
    EXPECT_THAT(Outputs(result), testing::ElementsAre("a.jpg", "b.png"));
    EXPECT_EQ(result.messages, "lumetra-presets: 2 written\n");
}

TEST_F(ApplyInputsTest, takesSubfoldersWhenToldTo)
{
    for (const char* name : {"in/b.png", "in/sub/c.png", "in/sub/a.png", "in/.trash/d.png"})
        WritePhoto(name);
    ASSERT_TRUE(QFile::link(Path("in"), Path("in/sub/circle")));

    for (const char* option : {"--recursive", "-r"}) {
        const CliResult result =
            Apply(Words("in -o out/{name}.png --overwrite") + QStringList{QLatin1String(option)});
        EXPECT_EQ(result.code, 0) << result.messages;
        EXPECT_THAT(Outputs(result), testing::ElementsAre("b.png", "a.png", "c.png"));
    }
}

TEST_F(ApplyInputsTest, saysThatAFolderHasNoPhotos)
{
    WritePhoto("a.png");
    QDir(folder.path()).mkdir(QStringLiteral("empty"));

    const CliResult result = Apply("empty a.png -o out/{name}.png");

    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.messages, "lumetra-presets: empty: expected photos in the folder, found none\n"
                               "lumetra-presets: 1 written, 1 failed\n");
    EXPECT_TRUE(Exists("out/a.png"));
}

TEST_F(ApplyInputsTest, aBrokenFileOfAFolderCostsItselfAlone)
{
    WritePhoto("in/a.png");
    WriteFile("in/b.jpg", "");

    const CliResult result = Apply("in -o out/{name}.png");

    EXPECT_EQ(result.code, 1);
    EXPECT_THAT(result.messages, HasSubstr("in/b.jpg: the file is empty"));
    EXPECT_TRUE(Exists("out/a.png"));
}

TEST_F(ApplyInputsTest, takesTheNamesOfAList)
{
    WritePhoto("a b.png");
    WritePhoto("c.png");
    WritePhoto("in/d.png");
    WriteFile("list.txt", "\xEF\xBB\xBF"
                          "a b.png\r\n\nc.png\nin");

    const CliResult result = Apply("--files-from list.txt -o out/{n}-{name}.png");

    EXPECT_EQ(result.code, 0) << result.messages;
    EXPECT_THAT(Outputs(result), testing::ElementsAre("1-a b.png", "2-c.png", "3-d.png"));
}

TEST_F(ApplyInputsTest, takesAListFromTheStandardInput)
{
    WritePhoto("a\nb.png");
    WritePhoto("c.png");
    WritePhoto("first.png");

    const CliResult lines = RunWithInput(
        Words("apply -p test.grey first.png --files-from - -o out/{name}.png"), "c.png\n");
    const CliResult zeros =
        RunWithInput(Words("apply -p test.grey --files-from - --null -o zero/{name}.png"),
                     QByteArray("a\nb.png\0c.png\0", 14));

    EXPECT_EQ(lines.code, 0) << lines.messages;
    EXPECT_THAT(Outputs(lines), testing::ElementsAre("first.png", "c.png"));
    EXPECT_EQ(zeros.code, 0) << zeros.messages;
    EXPECT_TRUE(Exists("zero/a\nb.png") && Exists("zero/c.png"));
}

TEST_F(ApplyInputsTest, namesOfAListThatAreNoPhotosFailAlone)
{
    WritePhoto("a.png");

    const CliResult result =
        RunWithInput(Words("apply -p test.grey --files-from - -o out/{name}.png"),
                     "none.png\nbad\xff.png\na.png\n");

    EXPECT_EQ(result.code, 1);
    EXPECT_THAT(result.messages, HasSubstr("none.png: expected a photo, found no such file"));
    EXPECT_THAT(result.messages, HasSubstr(".png: expected a name in the system's encoding"));
    EXPECT_TRUE(Exists("out/a.png"));
}

TEST_F(ApplyInputsTest, aNameInAnotherEncodingIsToldApartFromAMissingFile)
{
    WritePhoto("a.png");
    const QByteArray name = QFile::encodeName(folder.path()) + "/b\xe4r.png";
    ASSERT_EQ(std::rename(qPrintable(Path("a.png")), name.constData()), 0);

    const CliResult result = RunThrough(
        QStringLiteral("sh"),
        {QStringLiteral("-c"), QStringLiteral("exec \"$@\" b*.png"), QStringLiteral("sh")},
        Words("apply -p test.grey -o out.png"));

    std::remove(name.constData()); // Qt could not remove it with its folder
    EXPECT_EQ(result.code, 1);
    EXPECT_THAT(result.messages, HasSubstr("r.png: expected a name in the system's encoding, "
                                           "UTF-8, found other bytes in it; rename it"));
}

TEST_F(ApplyInputsTest, anEmptyListIsDoneAtOnce)
{
    WriteFile("list.txt", "\n");

    const CliResult result = Apply("--files-from list.txt");

    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.messages, "lumetra-presets: the list names no photo\n");
    EXPECT_EQ(Apply("--files-from list.txt --quiet").messages, "");
}

TEST_F(ApplyInputsTest, refusesListsThatCannotBe)
{
    WritePhoto("a.png");
    const std::vector<std::pair<const char*, const char*>> cases = {
        {"--files-from none.txt", "--files-from: expected a list of photos, found \"none.txt\", "
                                  "which cannot be read: No such file or directory"},
        {"--files-from .", "--files-from: expected a list of photos, found \".\""},
        {"a.png --null", "--null: expected --files-from, whose names it separates"},
        {"a.png -", "expected \"-\", the standard input, as the only photo, found more"},
        {"- --files-from -", "expected \"-\", the standard input, as the only photo, found more"}};
    for (const auto& [line, message] : cases) {
        const CliResult result = Apply(line);
        EXPECT_EQ(result.code, 2) << line;
        EXPECT_THAT(result.messages, HasSubstr(message)) << line;
    }
}

TEST_F(ApplyInputsTest, leavesItsOwnResultsOutOfTheNextRun)
{
    WritePhoto("a.png");
    WritePhoto("b.jpg");
    ASSERT_EQ(Apply("a.png b.jpg").code, 0);
    const QStringList photos =
        QDir(folder.path()).entryList({QStringLiteral("*.png"), QStringLiteral("*.jpg")});
    ASSERT_EQ(photos.size(), 4);

    const CliResult other = Run(Words("apply -p test.grey --json") + photos);

    EXPECT_EQ(other.code, 0) << other.messages;
    EXPECT_THAT(other.messages,
                HasSubstr("lumetra-presets: a_Test Bright.png: is left out: it is a result, whose "
                          "XMP data record a look; --again takes it\n"));
    EXPECT_THAT(other.output, HasSubstr("\"state\": \"leftOut\""));
    EXPECT_TRUE(Exists("a_Test Grey.png") && Exists("b_Test Grey.jpg"));
    EXPECT_FALSE(Exists("a_Test Bright_Test Grey.png"));

    const CliResult again = Run(Words("apply -p test.grey --again --skip") + photos);
    EXPECT_EQ(again.code, 0) << again.messages;
    EXPECT_TRUE(Exists("a_Test Bright_Test Grey.png"));
}

TEST_F(ApplyInputsTest, theSameRunOnceMoreReplacesItsResultsOrLeavesThem)
{
    WritePhoto("a.png");
    ASSERT_EQ(Apply("a.png -i 10").code, 0);
    const QByteArray first = ReadFile("a_Test Bright.png");
    const QStringList photos = {QStringLiteral("a.png"), QStringLiteral("a_Test Bright.png")};

    const CliResult refused = Apply(photos);
    EXPECT_EQ(refused.code, 1);
    EXPECT_THAT(refused.messages, HasSubstr("a_Test Bright.png: exists"));
    EXPECT_EQ(Apply(photos + Words("-i 10 --skip")).code, 0);
    EXPECT_EQ(Apply(photos + Words("--skip")).code, 1) << "of another intensity";
    EXPECT_EQ(ReadFile("a_Test Bright.png"), first);
    EXPECT_EQ(Apply(photos + Words("--overwrite")).code, 0);
    EXPECT_NE(ReadFile("a_Test Bright.png"), first);
}

TEST_F(ApplyInputsTest, leavesOutputsOfOtherPhotosOutThatRecordNothing)
{
    WritePhoto("a.png");
    ASSERT_EQ(Apply("a.png --metadata none --skip").code, 0);
    const QByteArray before = ReadFile("a_Test Bright.png");
    ASSERT_TRUE(QFile::link(Path("a_Test Bright.png"), Path("link.png")));
    const QStringList photos = {QStringLiteral("a.png"), QStringLiteral("link.png"),
                                QStringLiteral("--metadata"), QStringLiteral("none")};

    const CliResult skipped = Apply(photos + Words("--skip"));
    EXPECT_EQ(skipped.code, 0);
    EXPECT_EQ(skipped.messages, "lumetra-presets: link.png: is left out: it is the output of "
                                "\"a.png\"; --again takes it\n"
                                "lumetra-presets: 1 skipped, 1 left out\n");
    EXPECT_FALSE(Exists("link_Test Bright.png"));

    const CliResult replaced = Apply(photos + Words("--overwrite"));
    EXPECT_EQ(replaced.code, 1) << "nothing proves that the file is a result";
    EXPECT_THAT(replaced.messages, HasSubstr("is one of the photos and is not overwritten"));
    EXPECT_EQ(ReadFile("a_Test Bright.png"), before);

    const CliResult again = Apply(photos + Words("--overwrite --again"));
    EXPECT_EQ(again.code, 1);
    EXPECT_EQ(ReadFile("a_Test Bright.png"), before);
    EXPECT_TRUE(Exists("link_Test Bright.png"));
}

TEST_F(ApplyInputsTest, numbersPhotosWithoutThoseThatAreResults)
{
    WritePhoto("a.png");
    WritePhoto("b.png");
    ASSERT_EQ(Apply("a.png -o a_1.png").code, 0);

    const CliResult result = Apply("a.png a_1.png b.png none.png -o out/{n:03}.png --dry-run");

    EXPECT_THAT(Outputs(result), testing::ElementsAre("001.png", "002.png"));
}
