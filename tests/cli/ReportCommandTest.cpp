// SPDX-License-Identifier: GPL-2.0-or-later
#include "CliTest.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "storage/JsonDocument.h"

#include <QDir>

#include <algorithm>

#include <sys/stat.h>

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

/// A line for a job, as "apply --json" writes it.
std::string Line(const char* photo, const char* state, const char* shard = "",
                 const char* message = "")
{
    std::string line = std::string("{\"photo\": \"") + photo + "\", \"output\": \"out/" + photo +
                       "\", \"state\": \"" + state + "\"";
    if (*message != 0)
        line += std::string(", \"message\": \"") + message + "\"";
    if (*shard != 0)
        line += std::string(", \"shard\": \"") + shard + "\"";
    return line + "}\n";
}

/// The last line of a report.
std::string End(int jobsOfList, const char* shard = "")
{
    std::string line =
        "{\"summary\": {\"version\": 1, \"jobs\": 1, \"list\": " + std::to_string(jobsOfList) + "}";
    if (*shard != 0)
        line += std::string(", \"shard\": \"") + shard + "\"";
    return line + "}\n";
}

class ReportCommandTest : public CliTest
{
protected:
    void Write(const char* name, const std::string& text) const
    {
        WriteFile(name, QByteArray::fromStdString(text));
    }

    CliResult Report(const char* line) const { return RunPlain(Words("report") + Words(line)); }
};

} // namespace

TEST_F(ReportCommandTest, saysThatAllIsThere)
{
    Write("1.jsonl",
          Line("a.jpg", "written", "1/2") + Line("b.jpg", "skipped", "1/2") + End(3, "1/2"));
    Write("2.jsonl", Line("c.jpg", "leftOut", "2/2") + End(3, "2/2"));

    const CliResult result = Report("2.jsonl 1.jsonl");

    EXPECT_EQ(result.code, 0) << result.messages;
    EXPECT_EQ(result.output, "1 written, 1 skipped, 1 left out, 0 failed, 0 not done: complete\n");
}

TEST_F(ReportCommandTest, namesWhatHasFailedAndListsItForAnotherRun)
{
    Write("1.jsonl", Line("a.jpg", "written") +
                         Line("b.jpg", "failed", "", "b.jpg: expected a photo") +
                         Line("c.jpg", "planned") + End(3));

    const CliResult result = Report("1.jsonl --failed-list again.txt");

    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.output, "failed: b.jpg: expected a photo\n"
                             "not done: c.jpg\n"
                             "1 written, 0 skipped, 0 left out, 1 failed, 1 not done: not "
                             "complete\n");
    EXPECT_EQ(ReadFile("again.txt"), "b.jpg\nc.jpg\n");
}

TEST_F(ReportCommandTest, takesAJobForDoneWhenOneAttemptDidIt)
{
    Write("1.jsonl", Line("a.jpg", "failed") + Line("b.jpg", "written") + End(2));
    Write("2.jsonl", Line("a.jpg", "written") + End(1));

    for (const char* order : {"1.jsonl 2.jsonl", "2.jsonl 1.jsonl"})
        EXPECT_EQ(Report(order).code, 0) << order;
}

TEST_F(ReportCommandTest, takesAPhotoForDoneThatHadNoOutputBefore)
{
    Write("1.jsonl", "{\"photo\": \"a.jpg\", \"output\": \"\", \"state\": \"failed\"}\n" + End(1));
    Write("2.jsonl", Line("a.jpg", "written") + End(1));

    EXPECT_EQ(Report("1.jsonl").code, 1);
    EXPECT_EQ(Report("1.jsonl 2.jsonl").code, 0);
}

TEST_F(ReportCommandTest, findsShardsThatAreMissingOrWereKilled)
{
    Write("1.jsonl", Line("a.jpg", "written", "1/5") + End(9, "1/5"));
    Write("3.jsonl", Line("c.jpg", "written", "3/5") + "{\"photo\": \"d.j");

    const CliResult result = Report("1.jsonl 3.jsonl");

    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.output,
              "without an end: 3.jsonl\n"
              "shards to run again, of 5: 2-5\n"
              "2 written, 0 skipped, 0 left out, 0 failed, 0 not done: not complete\n");
    EXPECT_THAT(result.messages, IsEmpty());
}

TEST_F(ReportCommandTest, namesAShardAgainThatWasInterrupted)
{
    Write("1.jsonl", Line("a.jpg", "written", "1/2") + End(3, "1/2"));
    Write("2.jsonl",
          Line("b.jpg", "planned", "2/2") +
              "{\"summary\": {\"version\": 1, \"jobs\": 1, \"planned\": 1, \"list\": 2}, "
              "\"shard\": \"2/2\"}\n");

    const CliResult result = Report("1.jsonl 2.jsonl");

    EXPECT_EQ(result.code, 1);
    EXPECT_THAT(result.output, HasSubstr("not done: b.jpg\nshards to run again, of 2: 2\n"));
}

TEST_F(ReportCommandTest, isCompleteWhenAKilledShardWasRunAgain)
{
    Write("1.jsonl", Line("a.jpg", "written", "1/2") + End(3, "1/2"));
    Write("2.jsonl", Line("b.jpg", "written", "2/2"));
    Write("2-again.jsonl",
          Line("b.jpg", "skipped", "2/2") + Line("c.jpg", "written", "2/2") + End(3, "2/2"));
    Write("empty.jsonl", "");

    EXPECT_EQ(Report("1.jsonl 2.jsonl empty.jsonl").code, 1);
    EXPECT_EQ(Report("1.jsonl 2.jsonl 2-again.jsonl empty.jsonl").code, 0);
}

TEST_F(ReportCommandTest, isCompleteWhenTheRestOfAKilledShardWasDoneByItsPhotos)
{
    Write("list.txt", "a.jpg\nb.jpg\nc.jpg\n");
    Write("1.jsonl", Line("a.jpg", "written", "1/2") + End(3, "1/2"));
    Write("2.jsonl", Line("b.jpg", "written", "2/2"));

    EXPECT_EQ(Report("1.jsonl 2.jsonl --files-from list.txt --failed-list again.txt").code, 1);
    EXPECT_EQ(ReadFile("again.txt"), "c.jpg\n");
    Write("again.jsonl", Line("c.jpg", "written") + End(1));

    const CliResult result = Report("1.jsonl 2.jsonl again.jsonl --files-from list.txt");

    EXPECT_EQ(result.code, 0) << result.output;
}

// Another look of c.jpg may be what the killed shard had to do.
TEST_F(ReportCommandTest, isNotCompleteWhileJobsAreUntoldOf)
{
    Write("list.txt", "a.jpg\nb.jpg\n");
    Write("1.jsonl", Line("a.jpg", "written", "1/2") + End(4, "1/2"));
    Write("2.jsonl", Line("b.jpg", "written", "2/2"));

    EXPECT_EQ(Report("1.jsonl 2.jsonl --files-from list.txt").code, 1);
}

TEST_F(ReportCommandTest, isNotCompleteWithoutAnEnd)
{
    Write("1.jsonl", Line("a.jpg", "written"));
    Write("empty.jsonl", "");

    EXPECT_EQ(Report("1.jsonl").code, 1);
    EXPECT_EQ(Report("empty.jsonl").code, 1);
}

TEST_F(ReportCommandTest, findsPhotosOfTheListOfWhichNoReportTells)
{
    Write("list.txt", "a.jpg\nb.jpg\nb.jpg\n");
    Write("1.jsonl", Line("a.jpg", "written") + End(1));

    const CliResult result = Report("1.jsonl --files-from list.txt --failed-list again.txt");

    EXPECT_EQ(result.code, 1);
    EXPECT_THAT(result.output, HasSubstr("in no report: b.jpg\n"));
    EXPECT_EQ(ReadFile("again.txt"), "b.jpg\n");
}

TEST_F(ReportCommandTest, writesAnEmptyListWhenAllIsDone)
{
    Write("1.jsonl", Line("a.jpg", "written") + End(1));

    EXPECT_EQ(Report("1.jsonl --failed-list again.txt").code, 0);

    EXPECT_TRUE(Exists("again.txt"));
    EXPECT_EQ(ReadFile("again.txt"), "");
}

TEST_F(ReportCommandTest, writesNoListThatCannotBeReadAgain)
{
    Write("1.jsonl",
          "{\"photo\": \"a\\nb.jpg\", \"output\": \"x\", \"state\": \"failed\"}\n" + End(1));

    const CliResult refused = Report("1.jsonl --failed-list again.txt");
    const CliResult done = Report("1.jsonl --failed-list again.txt --null");

    EXPECT_EQ(refused.code, 1);
    EXPECT_THAT(refused.messages, HasSubstr("expected a name without line breaks"));
    EXPECT_EQ(done.code, 1);
    EXPECT_EQ(ReadFile("again.txt"), QByteArray("a\nb.jpg\0", 8));
}

TEST_F(ReportCommandTest, namesLinesThatAreNoneOfAReport)
{
    Write("1.jsonl", Line("a.jpg", "written") + "hello\n" + Line("b.jpg", "eaten") +
                         Line("c.jpg", "written", "3/2") + "[1]\n" +
                         "{\"summary\": {\"version\": 2}}\n" + End(1));

    const CliResult result = Report("1.jsonl");

    EXPECT_EQ(result.code, 1);
    for (const char* place : {"1.jsonl:2: expected a line of a report",
                              "1.jsonl:3: ", "1.jsonl:4: ", "1.jsonl:5: ", "1.jsonl:6: "})
        EXPECT_THAT(result.messages, HasSubstr(place));
    EXPECT_THAT(result.messages, HasSubstr("found \"eaten\""));
    EXPECT_THAT(result.messages, Not(HasSubstr("1.jsonl:1:")));
}

TEST_F(ReportCommandTest, tellsOfAFewLinesOfAFileThatIsSomethingElse)
{
    std::string text;
    for (int i = 0; i < 1000; ++i)
        text += "no report\n";
    Write("1.jsonl", text);

    const CliResult result = Report("1.jsonl");

    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(std::count(result.messages.begin(), result.messages.end(), '\n'), 11);
    EXPECT_THAT(result.messages, HasSubstr("1.jsonl: 990 more such lines\n"));
}

TEST_F(ReportCommandTest, refusesShardsOfTwoDivisions)
{
    Write("1.jsonl", Line("a.jpg", "written", "1/1") + End(1, "1/1"));
    Write("2.jsonl", Line("b.jpg", "written", "1/2") + End(2, "1/2"));

    const CliResult result = Report("1.jsonl 2.jsonl");

    EXPECT_EQ(result.code, 1);
    EXPECT_THAT(result.messages, HasSubstr("2.jsonl:1: expected a line of a report of \"apply "
                                           "--json\": expected one of 1 shards"));
}

TEST_F(ReportCommandTest, tellsTheRestWhenAReportCannotBeRead)
{
    Write("1.jsonl", Line("a.jpg", "written") + End(1));
    QDir(folder.path()).mkdir(QStringLiteral("folder"));
    ASSERT_EQ(::mkfifo(qPrintable(Path("pipe")), 0600), 0);

    const CliResult result = Report("1.jsonl missing folder pipe");

    EXPECT_EQ(result.code, 1);
    EXPECT_THAT(result.output, HasSubstr("1 written"));
    EXPECT_THAT(result.messages, HasSubstr("missing: expected a report, found no such file\n"));
    EXPECT_THAT(result.messages, HasSubstr("folder: expected a report, found no plain file\n"));
    EXPECT_THAT(result.messages, HasSubstr("pipe: expected a report, found no plain file\n"));
}

TEST_F(ReportCommandTest, refusesListsThatItMayNotReadOrWrite)
{
    Write("1.jsonl", Line("a.jpg", "written") + End(1));
    Write("list.txt", "photos\n");
    Write("kept.txt", "precious");
    QDir(folder.path()).mkdir(QStringLiteral("photos"));
    const std::vector<std::pair<const char*, const char*>> cases = {
        {"", "expected at least one report"},
        {"1.jsonl --files-from missing", "--files-from: expected a list of photos"},
        {"1.jsonl --files-from list.txt", "expected photos, found the folder \"photos\""},
        {"1.jsonl --failed-list kept.txt", "\"kept.txt\" exists; --overwrite replaces it"},
        {"1.jsonl --failed-list photos", "expected a file to write, found \"photos\""},
        {"1.jsonl --failed-list 1.jsonl --overwrite", "is read, and is not overwritten"},
        {"1.jsonl --files-from kept.txt --failed-list ./kept.txt --overwrite", "is read, and"},
    };
    for (const auto& [line, message] : cases) {
        const CliResult result = Report(line);
        EXPECT_EQ(result.code, 2) << line;
        EXPECT_THAT(result.messages, HasSubstr(message)) << line;
    }
    EXPECT_EQ(ReadFile("kept.txt"), "precious");
    EXPECT_EQ(Report("1.jsonl --failed-list kept.txt --overwrite").code, 0);
    EXPECT_EQ(ReadFile("kept.txt"), "");
}

TEST_F(ReportCommandTest, tellsEverythingAsJson)
{
    Write("1.jsonl", Line("a.jpg", "written", "1/3") +
                         Line("b.jpg", "failed", "1/3", "no \\\"photo\\\"") + End(5, "1/3"));

    const CliResult result = Report("1.jsonl --json");

    EXPECT_EQ(result.code, 1);
    const auto document =
        LumetraHost::JsonDocument::Parse(QByteArray::fromStdString(result.output), "report");
    const auto root = document.GetRoot();
    EXPECT_FALSE(root->Get("complete", true));
    EXPECT_EQ(root->Get("written", -1), 1);
    EXPECT_EQ(root->Get("shards", -1), 3);
    EXPECT_EQ(root->Get("shardsToRepeat", ""), "2-3");
    ASSERT_EQ(root->GetCollection("failed")->GetCount(), 1U);
    EXPECT_EQ(root->GetCollection("failed")->GetElement(0)->Get("message", ""), "no \"photo\"");
    EXPECT_EQ(root->GetCollection("photosToRepeat")->GetElement(0)->Get("photo", ""), "b.jpg");
}
