// SPDX-License-Identifier: GPL-2.0-or-later
// How apply tells of its work: names, JSON lines, summary, progress, and the end by a signal.
#include "CliTest.h"
#include "Places.h"
#include "Zorvik/Brassel/ISerializer.h"
#include "storage/JsonDocument.h"

#include <QDir>
#include <QProcess>

#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <unistd.h>

using testing::ContainsRegex;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using Zorvik::Brassel::ConstSerializerPtr;

namespace {

/// A process whose stderr is a terminal of that many columns.
class TerminalProcess : public QProcess
{
public:
    explicit TerminalProcess(unsigned short columns)
    {
        struct winsize size = {25, columns, 0, 0};
        EXPECT_EQ(::openpty(&m_master, &m_slave, nullptr, nullptr, &size), 0);
        ::fcntl(m_master, F_SETFL, O_NONBLOCK);
    }

    ~TerminalProcess() override
    {
        ::close(m_master);
        ::close(m_slave);
    }

    /// Returns what has been written to the terminal, a few kilobytes at most.
    std::string ReadTerminal() const
    {
        std::string text;
        char buffer[4096];
        for (ssize_t size = ::read(m_master, buffer, sizeof buffer); size > 0;
             size = ::read(m_master, buffer, sizeof buffer))
            text.append(buffer, static_cast<std::size_t>(size));
        return text;
    }

    /// Waits until something has been written to the terminal.
    void WaitForText() const
    {
        struct pollfd terminal = {m_master, POLLIN, 0};
        while (::poll(&terminal, 1, -1) < 0 && errno == EINTR) {
        }
    }

protected:
    void setupChildProcess() override { ::dup2(m_slave, STDERR_FILENO); }

private:
    int m_master = -1;
    int m_slave = -1;
};

/// Returns false in a root folder without /dev/pts, as those that packages are built in can be.
bool HasTerminals()
{
    const int master = ::posix_openpt(O_RDWR | O_NOCTTY);
    if (master < 0)
        return false;
    const bool hasName = ::grantpt(master) == 0 && ::unlockpt(master) == 0 && ::ptsname(master);
    ::close(master);
    return hasName;
}

class ReportTest : public CliTest
{
protected:
    static QStringList OnlyLooks()
    {
        return Words("--only-named --catalogue looks.json --store presets.json");
    }

    std::vector<ConstSerializerPtr> ReadLines(const QByteArray& text) const
    {
        std::vector<ConstSerializerPtr> lines;
        EXPECT_TRUE(text.endsWith('\n'));
        for (const QByteArray& line : text.split('\n'))
            if (!line.isEmpty())
                lines.push_back(LumetraHost::JsonDocument::Parse(line, "line").GetRoot());
        return lines;
    }

    void Start(QProcess& process, const QStringList& arguments) const
    {
        process.setProcessEnvironment(GetEnvironment());
        process.setWorkingDirectory(folder.path());
        process.start(QStringLiteral(LUMETRA_PRESETS_PROGRAM), arguments + OnlyLooks());
    }

    std::string RunOnTerminal(unsigned short columns, const QStringList& arguments,
                              const char* kind = "xterm") const
    {
        TerminalProcess process(columns);
        QProcessEnvironment environment = GetEnvironment();
        environment.insert(QStringLiteral("TERM"), QLatin1String(kind));
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(folder.path());
        process.start(QStringLiteral(LUMETRA_PRESETS_PROGRAM), arguments + OnlyLooks());
        EXPECT_TRUE(process.waitForFinished(-1));
        return process.ReadTerminal();
    }

    QStringList WritePhotos(int count, int width = 48, int height = 32) const
    {
        QStringList names;
        for (int i = 0; i < count; ++i)
            names.append(QStringLiteral("p%1.png").arg(i, 2, 10, QLatin1Char('0')));
        for (const QString& name : names)
            WritePhoto(name.toLatin1(), width, height);
        return names;
    }
};

} // namespace

TEST_F(ReportTest, endsWithASummaryOfSeveralPhotosOnStderr)
{
    WritePhotos(2);
    ASSERT_EQ(Run(Words("apply p01.png -p test.bright -o out/{name}.png")).code, 0);
    const CliResult result =
        Run(Words("apply p00.png p01.png missing.png -p test.bright -o out/{name}.png --skip"));
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.output, Path("out/p00.png").toStdString() + "\n");
    EXPECT_THAT(result.messages, EndsWith("\nlumetra-presets: 1 written, 1 skipped, 1 failed\n"));

    const CliResult planned =
        Run(Words("apply p00.png p01.png -p test.bright -o new/{name}.png --dry-run"));
    EXPECT_EQ(planned.messages, "lumetra-presets: 2 to be written\n");
    EXPECT_EQ(Run(Words("apply p00.png -p test.bright -o one.png")).messages, "")
        << "the name says it all";
}

TEST_F(ReportTest, isQuietButForWarningsAndFailures)
{
    WritePhotos(2);
    ASSERT_EQ(Run(Words("apply p01.png -p test.bright -o out/{name}.png")).code, 0);
    const CliResult result = Run(
        Words("apply p00.png p00.png p01.png missing.png -p test.bright -o out/{name}.png --skip "
              "--quiet"));
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.messages,
              "lumetra-presets: missing.png: expected a photo, found no such file\n");
    EXPECT_TRUE(Exists("out/p00.png"));
    EXPECT_EQ(Run(Words("apply p00.png p01.png -p test.grey -o {name}.jpg -q")).messages, "");
}

TEST_F(ReportTest, writesALineOfJsonForEachFileAndOneForTheWhole)
{
    WritePhotos(2);
    const CliResult result = Run(Words("apply p00.png p00.png missing.png p01.png -p test.bright "
                                       "-i 40 -o out/{name}.png --json --quiet"));
    EXPECT_EQ(result.code, 1);
    const auto lines = ReadLines(QByteArray::fromStdString(result.output));
    ASSERT_EQ(lines.size(), 5U);
    EXPECT_EQ(lines[0]->Get("photo", ""), "p00.png");
    EXPECT_EQ(lines[0]->Get("output", ""), Path("out/p00.png").toStdString());
    EXPECT_EQ(lines[0]->Get("state", ""), "written");
    const auto look = lines[0]->GetCollection("looks")->GetElement(0);
    EXPECT_EQ(look->Get("id", ""), "test.bright");
    EXPECT_EQ(look->Get("intensity", 0), 40);
    EXPECT_EQ(lines[1]->Get("state", ""), "skipped");
    EXPECT_EQ(lines[2]->Get("state", ""), "failed");
    EXPECT_EQ(lines[2]->Get("message", ""), "missing.png: expected a photo, found no such file");
    const auto summary = lines[4]->GetNode("summary");
    EXPECT_EQ(summary->Get("jobs", 0), 4);
    EXPECT_EQ(summary->Get("written", 0), 2);
    EXPECT_EQ(summary->Get("skipped", 0), 1);
    EXPECT_EQ(summary->Get("failed", 0), 1);
    EXPECT_FALSE(summary->Get("interrupted", true));
}

TEST_F(ReportTest, showsProgressOnATerminalAloneAndClearsIt)
{
    if (!HasTerminals())
        GTEST_SKIP() << "no terminal can be opened here";
    const QStringList photos = WritePhotos(3);
    const QStringList apply =
        photos + Words("missing.png -p test.bright -o out/{name}.png --overwrite --jobs 1");

    const std::string shown = RunOnTerminal(80, QStringList{QStringLiteral("apply")} + apply);
    EXPECT_THAT(shown, ContainsRegex("\\[>  *\\] 0/4\r?"));
    EXPECT_THAT(shown, ContainsRegex("\\[==*>  *\\] 3/4, about [0-9]+ s"));
    EXPECT_THAT(shown, HasSubstr("\r\033[Klumetra-presets: missing.png: expected a photo, found no "
                                 "such file\r\n"));
    EXPECT_THAT(shown, HasSubstr("[==============================] 4/4, 1 failed"));
    EXPECT_THAT(shown, EndsWith("\r\033[Klumetra-presets: 3 written, 1 failed\r\n"));

    EXPECT_THAT(RunOnTerminal(12, QStringList{QStringLiteral("apply")} + apply),
                Not(HasSubstr("[>")))
        << "no room for a bar";
    EXPECT_THAT(RunOnTerminal(80, QStringList{QStringLiteral("apply")} + apply, "dumb"),
                Not(HasSubstr("\033")));
    EXPECT_EQ(RunOnTerminal(80, QStringList{QStringLiteral("apply"), QStringLiteral("-q")} + apply),
              "lumetra-presets: missing.png: expected a photo, found no such file\r\n");
    EXPECT_THAT(Run(QStringList{QStringLiteral("apply")} + apply).messages, Not(HasSubstr("\033")));
}

TEST_F(ReportTest, anInterruptedRunLeavesWholeFilesAndTellsHowFarItCame)
{
    const QStringList photos = WritePhotos(40, 600, 400);
    for (const int signal : {SIGINT, SIGTERM}) {
        QProcess process;
        Start(process, QStringList{QStringLiteral("apply")} + photos +
                           Words("-p test.bright -o out/{name}.png --overwrite --jobs 1 --json"));
        QByteArray output;
        while (!output.contains('\n') && process.waitForReadyRead(-1))
            output += process.readAllStandardOutput();
        ::kill(static_cast<pid_t>(process.processId()), signal);
        ASSERT_TRUE(process.waitForFinished(-1));
        output += process.readAllStandardOutput();

        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(process.exitCode(), 128 + signal);
        EXPECT_THAT(process.readAllStandardError().toStdString(),
                    ContainsRegex("^lumetra-presets: interrupted: [0-9]+ written, [0-9]+ not "
                                  "done\n$"));
        const auto lines = ReadLines(output);
        ASSERT_EQ(lines.size(), 41U);
        const auto summary = lines.back()->GetNode("summary");
        EXPECT_TRUE(summary->Get("interrupted", false));
        EXPECT_GE(summary->Get("written", 0), 1);
        EXPECT_GE(summary->Get("planned", 0), 1);
        const QStringList files = QDir(Path("out")).entryList(QDir::Files | QDir::Hidden);
        EXPECT_EQ(files.size(), summary->Get("written", 0));
        for (const QString& file : files)
            EXPECT_EQ(ReadPhoto((QStringLiteral("out/") + file).toUtf8()).GetWidth(), 600);
        QDir(Path("out")).removeRecursively();
    }
}

TEST_F(ReportTest, aSignalEndsAWaitForThePhotoFromThePipeAtOnce)
{
    if (!HasTerminals())
        GTEST_SKIP() << "no terminal can be opened here";
    TerminalProcess process(80);
    Start(process, Words("apply - -p test.bright -o out.png"));
    process.WaitForText(); // the progress, which is shown before the photo is read
    ::kill(static_cast<pid_t>(process.processId()), SIGINT);
    process.closeWriteChannel();
    ASSERT_TRUE(process.waitForFinished(-1));
    EXPECT_EQ(process.exitStatus(), QProcess::CrashExit);
    EXPECT_FALSE(Exists("out.png"));
}

TEST_F(ReportTest, anIgnoredSignalStaysIgnored)
{
    const QStringList photos = WritePhotos(6, 300, 200);
    QProcess process;
    process.setProcessEnvironment(GetEnvironment());
    process.setWorkingDirectory(folder.path());
    process.start(QStringLiteral("bash"),
                  QStringList{QStringLiteral("-c"), QStringLiteral("trap '' INT; exec \"$@\""),
                              QStringLiteral("bash"), QStringLiteral(LUMETRA_PRESETS_PROGRAM),
                              QStringLiteral("apply")} +
                      photos + Words("-p test.bright -o out/{name}.png --jobs 1") + OnlyLooks());
    ASSERT_TRUE(process.waitForReadyRead(-1));
    ::kill(static_cast<pid_t>(process.processId()), SIGINT);
    ASSERT_TRUE(process.waitForFinished(-1));
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
}
