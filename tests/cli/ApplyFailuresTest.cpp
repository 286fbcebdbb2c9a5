// SPDX-License-Identifier: GPL-2.0-or-later
// These tests let the machine fail under apply: full disks, folders that cannot be written, a kill.
#include "CliTest.h"
#include "Places.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>

#include <algorithm>

#include <sys/stat.h>

#include <unistd.h>

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

class ApplyFailuresTest : public CliTest
{
protected:
    /// Writes "p/00.png" to "p/NN.png".
    void WriteMany(int count) const
    {
        for (int i = 0; i < count; ++i)
            WritePhoto(qPrintable(QStringLiteral("p/%1.png").arg(i, 2, 10, QLatin1Char('0'))));
    }

    int CountFiles(const char* name) const
    {
        return QDir(Path(name)).entryList(QDir::Files | QDir::Hidden).size();
    }
};

} // namespace

TEST_F(ApplyFailuresTest, oneUnreadableOfAHundredCostsItselfAlone)
{
    WriteMany(100);
    WriteFile("p/50.png", "\x89PNG\r\n\x1A\nno more");

    const CliResult result = Run(Words("apply p -p test.grey -o out/{name}.png"));

    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(std::count(result.output.begin(), result.output.end(), '\n'), 99);
    EXPECT_THAT(result.messages, StartsWith("lumetra-presets: p/50.png: "));
    EXPECT_THAT(result.messages, EndsWith("\nlumetra-presets: 99 written, 1 failed\n"));
    EXPECT_EQ(std::count(result.messages.begin(), result.messages.end(), '\n'), 2);
    EXPECT_EQ(CountFiles("out"), 99);
}

TEST_F(ApplyFailuresTest, aFolderThatCannotBeWrittenFailsItsPhotosAlone)
{
    WritePhoto("p/a.png");
    WritePhoto("q/b.png");
    ASSERT_EQ(::chmod(qPrintable(Path("p")), 0555), 0);
    ASSERT_EQ(::chmod(qPrintable(folder.path()), 0755), 0);
    const QString program = QStandardPaths::findExecutable(QStringLiteral("setpriv"));
    if (::geteuid() == 0 && program.isEmpty())
        GTEST_SKIP() << "setpriv is needed, since root may write everywhere";
    ASSERT_EQ(::chmod(qPrintable(Path("q")), 0777), 0);
    const QStringList user =
        ::geteuid() == 0 ? Words("--reuid=65534 --regid=65534 --clear-groups") : QStringList();
    const QStringList line = Words("apply p/a.png q/b.png -p test.grey");

    const CliResult result = ::geteuid() == 0 ? RunThrough(program, user, line) : Run(line);

    ASSERT_EQ(::chmod(qPrintable(Path("p")), 0755), 0);
    EXPECT_EQ(result.code, 1) << result.messages;
    EXPECT_THAT(result.messages, HasSubstr("/p/a_Test Grey.png"));
    EXPECT_THAT(result.messages, HasSubstr("Permission denied"));
    EXPECT_TRUE(Exists("q/b_Test Grey.png"));
    EXPECT_EQ(CountFiles("p"), 1);
}

// A name space of its own for the mount needs no rights of the user.
TEST_F(ApplyFailuresTest, aFullDiskFailsPhotosAndLeavesNothingHalf)
{
    WritePhoto("large.png", 900, 600);
    WritePhoto("small.png", 10, 10);
    WriteFile("run.sh", "mkdir -p full && mount -t tmpfs -o size=100k tmpfs full || exit 77\n"
                        "\"$@\"\ncode=$?\nls -A full > left.txt\nexit $code\n");
    QDir(folder.path()).mkdir(QStringLiteral("full"));

    const CliResult result =
        RunThrough(QStringLiteral("unshare"), Words("-rm sh run.sh"),
                   Words("apply large.png small.png -p test.grey -o full/{name}.tif -j 1"));

    if (result.code == 77 || result.messages.find("unshare") != std::string::npos)
        GTEST_SKIP() << "this machine mounts no file system for a test: " << result.messages;
    EXPECT_EQ(result.code, 1);
    EXPECT_THAT(result.messages, HasSubstr("full/large.tif: "));
    EXPECT_THAT(result.messages, HasSubstr("No space left on device"));
    EXPECT_EQ(ReadFile("left.txt"), "small.tif\n");
}

TEST_F(ApplyFailuresTest, killedAndStartedAgainItFinishesTheRest)
{
    WriteMany(40);
    const QStringList line = Words("apply p -p test.grey -o out/{name}.png -j 2 --only-named "
                                   "--catalogue looks.json");
    QProcess process;
    process.setWorkingDirectory(folder.path());
    process.start(QStringLiteral(LUMETRA_PRESETS_PROGRAM), line);
    ASSERT_TRUE(process.waitForReadyRead(-1)); // the first photo is there
    process.kill();
    process.waitForFinished(-1);
    const int before = CountFiles("out");
    ASSERT_GE(before, 1);

    const CliResult rest = RunPlain(line + Words("--skip"));

    EXPECT_EQ(rest.code, 0) << rest.messages;
    ASSERT_EQ(RunPlain(Words("apply p -p test.grey -o whole/{name}.png --only-named --catalogue "
                             "looks.json"))
                  .code,
              0);
    for (const QString& name : QDir(Path("whole")).entryList(QDir::Files))
        EXPECT_EQ(ReadFile(qPrintable(QStringLiteral("out/") + name)),
                  ReadFile(qPrintable(QStringLiteral("whole/") + name)))
            << qPrintable(name);
    EXPECT_EQ(QDir(Path("whole")).entryList(QDir::Files).size(), 40);
}
