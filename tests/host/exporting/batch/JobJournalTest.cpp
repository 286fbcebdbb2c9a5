// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/batch/JobJournal.h"

#include "host/photo/PhotoSamples.h"

#include <QDir>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <future>
#include <memory>

#include <sys/stat.h>

using namespace LumetraHost;
using LumetraTest::ErrorOf;
using LumetraTest::ReadFile;
using LumetraTest::WriteFile;
using testing::HasSubstr;

namespace {

class JobJournalTest : public testing::Test
{
protected:
    QString Path(const char* name) const { return folder.filePath(QString::fromUtf8(name)); }
    QString JournalFolder() const { return Path(JobJournal::FolderName); }
    QStringList Texts() const { return QDir(JournalFolder()).entryList(QDir::Files); }

    /// Writes an output as a job does: first into the journal, then in its place.
    void WriteOutput(const JobJournal& journal, const char* name, const std::string& job,
                     const Bytes& content) const
    {
        journal.Add(Path(name), job, content);
        WriteFile(Path(name), content);
    }

    /// The journal as a program reads it that is started later.
    bool IsDone(const char* name, const std::string& job) const
    {
        return JobJournal().IsDone(Path(name), job);
    }

    QTemporaryDir folder;
};

TEST_F(JobJournalTest, knowsTheJobThatMadeAFile)
{
    WriteOutput(JobJournal(), "a \"b\" \xc3\xa4.jpg", "job1", {1, 2, 3});

    EXPECT_TRUE(IsDone("a \"b\" \xc3\xa4.jpg", "job1"));
    EXPECT_FALSE(IsDone("a \"b\" \xc3\xa4.jpg", "job2"));
    EXPECT_FALSE(IsDone("other.jpg", "job1"));
}

TEST_F(JobJournalTest, knowsNothingOfAFileThatHasChanged)
{
    WriteOutput(JobJournal(), "a.jpg", "job", {1, 2, 3});

    WriteFile(Path("a.jpg"), {1, 2, 4});
    EXPECT_FALSE(IsDone("a.jpg", "job"));
    WriteFile(Path("a.jpg"), {1, 2});
    EXPECT_FALSE(IsDone("a.jpg", "job"));
    WriteFile(Path("a.jpg"), {});
    EXPECT_FALSE(IsDone("a.jpg", "job"));
    QFile::remove(Path("a.jpg"));
    EXPECT_FALSE(IsDone("a.jpg", "job"));
}

TEST_F(JobJournalTest, takesAFileThatNeverCameForNotDone)
{
    WriteFile(Path("a.jpg"), {9, 9, 9});
    JobJournal().Add(Path("a.jpg"), "job", {1, 2, 3});

    EXPECT_FALSE(IsDone("a.jpg", "job"));
}

TEST_F(JobJournalTest, keepsAllThatOneFileHasBeen)
{
    WriteOutput(JobJournal(), "a.jpg", "first", {1});
    WriteOutput(JobJournal(), "a.jpg", "second", {2});

    EXPECT_TRUE(IsDone("a.jpg", "second"));
    EXPECT_FALSE(IsDone("a.jpg", "first"));
    WriteFile(Path("a.jpg"), {1});
    EXPECT_TRUE(IsDone("a.jpg", "first"));
}

TEST_F(JobJournalTest, passesOverTornAndForeignLines)
{
    WriteOutput(JobJournal(), "a.jpg", "job", {1, 2, 3});
    const QString text = JournalFolder() + QLatin1Char('/') + Texts().value(0);
    const Bytes line = ReadFile(text);
    Bytes damaged = {'{', '}', '\n', '[', '1', ']', '\n', 0, 0, '\n', '\n'};
    damaged.insert(damaged.end(), line.begin(), line.end());
    damaged.insert(damaged.end(), line.begin(), line.end() - 20);
    WriteFile(text, damaged);

    EXPECT_TRUE(IsDone("a.jpg", "job"));
}

TEST_F(JobJournalTest, takesATornLineForNone)
{
    WriteOutput(JobJournal(), "a.jpg", "job", {1, 2, 3});
    const QString text = JournalFolder() + QLatin1Char('/') + Texts().value(0);
    const Bytes line = ReadFile(text);
    for (std::size_t size = 0; size < line.size() - 2; ++size) {
        WriteFile(text, Bytes(line.begin(), line.begin() + static_cast<std::ptrdiff_t>(size)));
        EXPECT_FALSE(IsDone("a.jpg", "job")) << size;
    }
}

TEST_F(JobJournalTest, givesEveryWriterATextOfItsOwn)
{
    const JobJournal first;
    const JobJournal second;
    WriteOutput(first, "a.jpg", "job", {1});
    WriteOutput(second, "b.jpg", "job", {2});
    WriteOutput(first, "c.jpg", "job", {3});

    EXPECT_EQ(Texts().size(), 2);
    for (const char* name : {"a.jpg", "b.jpg", "c.jpg"})
        EXPECT_TRUE(IsDone(name, "job")) << name;
}

// A node that was taken for dead may work on.
TEST_F(JobJournalTest, seesWhatOtherProgramsWriteMeanwhile)
{
    const JobJournal journal;
    WriteOutput(journal, "a.jpg", "job", {1});
    EXPECT_FALSE(journal.IsDone(Path("b.jpg"), "job"));

    const JobJournal other;
    WriteOutput(other, "b.jpg", "job", {2});
    EXPECT_TRUE(journal.IsDone(Path("b.jpg"), "job"));
    WriteOutput(other, "c.jpg", "job", {3});
    EXPECT_TRUE(journal.IsDone(Path("c.jpg"), "job"));
    EXPECT_FALSE(journal.IsDone(Path("c.jpg"), "other job"));
}

TEST_F(JobJournalTest, takesLinesOfManyThreads)
{
    constexpr int outputs = 100;
    const JobJournal journal;
    std::vector<std::future<void>> threads;
    for (int thread = 0; thread < 4; ++thread)
        threads.push_back(std::async(std::launch::async, [&, thread] {
            for (int i = thread; i < outputs; i += 4)
                WriteOutput(journal, std::to_string(i).c_str(), "job", {std::uint8_t(i)});
        }));
    threads.clear();

    EXPECT_EQ(Texts().size(), 1);
    const JobJournal later;
    for (int i = 0; i < outputs; ++i)
        EXPECT_TRUE(later.IsDone(Path(std::to_string(i).c_str()), "job")) << i;
}

TEST_F(JobJournalTest, keepsTheJournalsOfFoldersApart)
{
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("x")));
    WriteOutput(JobJournal(), "x/a.jpg", "job", {1});
    WriteFile(Path("a.jpg"), {1});

    EXPECT_TRUE(IsDone("x/a.jpg", "job"));
    EXPECT_FALSE(IsDone("a.jpg", "job"));
}

TEST_F(JobJournalTest, waitsForNoPipeAndReadsNoFolder)
{
    WriteOutput(JobJournal(), "a.jpg", "job", {1});
    ASSERT_EQ(::mkfifo(qPrintable(JournalFolder() + QStringLiteral("/pipe.jsonl")), 0600), 0);
    ASSERT_TRUE(QDir(JournalFolder()).mkpath(QStringLiteral("folder.jsonl")));

    EXPECT_TRUE(IsDone("a.jpg", "job"));
}

TEST_F(JobJournalTest, saysWhereItCannotBeWritten)
{
    WriteFile(Path(JobJournal::FolderName), {1});

    const auto error = ErrorOf([&] { JobJournal().Add(Path("a.jpg"), "job", {1}); });

    EXPECT_THAT(error, HasSubstr(JobJournal::FolderName));
    EXPECT_FALSE(IsDone("a.jpg", "job"));
}

TEST_F(JobJournalTest, neverTakesAnUnknownJobForDone)
{
    WriteOutput(JobJournal(), "a.jpg", "", {1});

    EXPECT_FALSE(IsDone("a.jpg", ""));
}

} // namespace
