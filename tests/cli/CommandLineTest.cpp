// SPDX-License-Identifier: GPL-2.0-or-later
#include "CliTest.h"
#include "Places.h"

#include <QProcess>

#include <sys/socket.h>
#include <unistd.h>

using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

namespace {

/// A process whose stdout is an open file of this one.
class ProcessWithOutput : public QProcess
{
public:
    explicit ProcessWithOutput(int output) : m_output(output) {}

protected:
    void setupChildProcess() override { ::dup2(m_output, STDOUT_FILENO); }

private:
    int m_output;
};

} // namespace

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

TEST_F(CliTest, everyCommandRefusesWordsThatItDoesNotTake)
{
    for (const char* const line :
         {"list extra", "list --json extra", "list --user extra nonsense",
          "sheet a.png b.png -o s.png", "export-lut -p test.grey -o g.cube extra",
          "rename test.bright New extra", "save test.bright New extra"}) {
        const CliResult result = Run(Words(line));
        EXPECT_EQ(result.code, 2) << line;
        EXPECT_THAT(result.output, IsEmpty()) << line;
        EXPECT_THAT(result.messages, HasSubstr("--help\" tells more")) << line;
    }
    EXPECT_THAT(Run(Words("list extra nonsense")).messages,
                HasSubstr("unexpected argument \"extra\""));
}

// A socket of packets keeps writes apart, so that the reader sees each write() by itself.
TEST_F(CliTest, printsEachLineAtOnce)
{
    int ends[2];
    ASSERT_EQ(::socketpair(AF_UNIX, SOCK_SEQPACKET, 0, ends), 0);
    ProcessWithOutput process(ends[1]);
    process.setWorkingDirectory(folder.path());
    process.start(QStringLiteral(LUMETRA_PRESETS_PROGRAM),
                  Words("list --only-named --catalogue looks.json --store presets.json"));
    ASSERT_TRUE(process.waitForFinished(-1));
    ::close(ends[1]);

    int lines = 0;
    char packet[10'000];
    for (ssize_t size = ::recv(ends[0], packet, sizeof packet, 0); size > 0;
         size = ::recv(ends[0], packet, sizeof packet, 0)) {
        const QByteArray line(packet, static_cast<int>(size));
        EXPECT_EQ(line.count('\n'), 1) << line.toStdString();
        EXPECT_TRUE(line.endsWith('\n')) << line.toStdString();
        ++lines;
    }
    EXPECT_EQ(lines, 8);
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    ::close(ends[0]);
}

TEST_F(CliTest, carriesABatchOutThoughNobodyReadsItsOutput)
{
    QStringList photos;
    for (const char* name : {"a.png", "b.png", "c.png"}) {
        WritePhoto(name);
        photos.append(QLatin1String(name));
    }
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    ::close(ends[0]);
    ProcessWithOutput process(ends[1]);
    process.setWorkingDirectory(folder.path());
    process.start(
        QStringLiteral(LUMETRA_PRESETS_PROGRAM),
        Words("apply -p test.bright -o out/{name}.png --only-named --catalogue looks.json "
              "--store presets.json --jobs 1") +
            photos);
    ASSERT_TRUE(process.waitForFinished(-1));
    ::close(ends[1]);

    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process.exitCode(), 1);
    EXPECT_TRUE(Exists("out/a.png") && Exists("out/b.png") && Exists("out/c.png"));
}
