// SPDX-License-Identifier: GPL-2.0-or-later
// The store under programs that are killed, and under two that work at once.
#include "Places.h"
#include "StoreFixture.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <exception>

namespace LumetraTest {
namespace {

class StoreSafetyTest : public testing::Test
{
protected:
    QString Path() const { return m_folder.filePath(QStringLiteral("presets.json")); }

    QTemporaryDir m_folder;
};

constexpr int TablePoints = 3;

/// Runs in the forked program. It must never return into the test, whose clean-up would remove the
/// folder.
[[noreturn]] void SaveAndExit(const QString& path, const QString& name)
{
    ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
    raise(SIGSTOP);
    int exitCode = 0;
    try {
        StoreProgram program(path);
        program.AddTable(name + QStringLiteral(" with a table"), TablePoints, 7);
        program.SaveAs(name);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "saving failed: %s\n", error.what());
        exitCode = 1;
    }
    _exit(exitCode);
}

/// Starts a program that saves one preset, and kills it after its system call number `calls`.
/// False when it ended before.
bool SaveAndKillAfter(const QString& path, const QString& name, int calls)
{
    const pid_t child = fork();
    if (child == 0)
        SaveAndExit(path, name);
    int status = 0;
    waitpid(child, &status, 0); // stopped by itself
    ptrace(PTRACE_SETOPTIONS, child, nullptr, PTRACE_O_EXITKILL | PTRACE_O_TRACESYSGOOD);
    for (int stop = 0; stop < 2 * calls; ++stop) { // each call stops at its begin and end
        ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
        waitpid(child, &status, 0);
        if (WIFEXITED(status) || WIFSIGNALED(status)) {
            EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "the save itself failed";
            return false;
        }
    }
    kill(child, SIGKILL);
    while (!WIFSIGNALED(status) && waitpid(child, &status, 0) == child) {
    }
    return true;
}

void ExpectAllTables(const StoreProgram& program)
{
    for (const QString& name : program.Names())
        EXPECT_EQ(program.Find(name)->FindProblem(LumetraHost::ContentCheck::Content), "");
}

void CopyFiles(const QString& from, const QString& to)
{
    for (const QString& name : QDir(from).entryList(QDir::Files))
        ASSERT_TRUE(QFile::copy(from + QLatin1Char('/') + name, to + QLatin1Char('/') + name));
}

TEST_F(StoreSafetyTest, losesNothingWhereverASaveIsKilled)
{
    StoreProgram(Path()).SaveAs(QStringLiteral("Kept"));
    StoreProgram(Path()).SaveTable(QStringLiteral("Kept too"), TablePoints, 1);
    int call = 1;
    bool isKilled = true;
    for (; isKilled; ++call) {
        SCOPED_TRACE(testing::Message() << "killed after system call " << call);
        // Each run has its own folder, since files that killed saves leave make the next save
        // longer.
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("presets.json"));
        CopyFiles(m_folder.path(), folder.path());
        ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("presets.json.tables")));
        CopyFiles(Path() + QStringLiteral(".tables"), path + QStringLiteral(".tables"));

        isKilled = SaveAndKillAfter(path, QStringLiteral("Killed"), call);

        StoreProgram later(path);
        QStringList names = later.Names();
        ASSERT_EQ(names.filter(QStringLiteral("Kept")).size(), 2);
        const bool isSaved = names.removeAll(QStringLiteral("Killed")) == 1;
        ASSERT_EQ(names.removeAll(QStringLiteral("Killed with a table")), isSaved ? 1 : 0);
        ASSERT_EQ(names.size(), 2);
        ASSERT_TRUE(isSaved || isKilled) << "a save that ends is there";
        ExpectAllTables(later);
        later.SaveAs(QStringLiteral("After"));
        ExpectAllTables(StoreProgram(path));
        // The tables of a text that a killed writer left are kept until that is removed.
        const bool isTextLeft =
            !QDir(folder.path())
                 .entryList({QStringLiteral("presets.json.??????")}, QDir::Files)
                 .isEmpty();
        if (isTextLeft)
            continue;
        const QDir tables(path + QStringLiteral(".tables"));
        ASSERT_EQ(
            tables.entryList().filter(QRegularExpression(QStringLiteral("^[0-9a-f]{64}$"))).size(),
            isSaved ? 2 : 1)
            << "what nobody names is collected";
    }
    EXPECT_GT(call, 50);
    RecordProperty("kills", call);
}

TEST_F(StoreSafetyTest, keepsAllEditsOfTwoProgramsAtWork)
{
    constexpr int Edits = 500;
    QProcess one;
    QProcess two;
    for (QProcess* process : {&one, &two})
        process->start(QStringLiteral(STORE_EDITOR),
                       {Path(), process == &one ? QStringLiteral("one-") : QStringLiteral("two-"),
                        QString::number(Edits)});
    for (QProcess* process : {&one, &two}) {
        ASSERT_TRUE(process->waitForFinished(-1));
        ASSERT_EQ(process->exitCode(), 0) << process->readAllStandardError().constData();
    }
    const QStringList names = StoreProgram(Path()).Names();
    EXPECT_EQ(names.size(), 2 * Edits);
    EXPECT_EQ(names.filter(QStringLiteral("one-")).size(), Edits);
    QStringList unique = names.filter(QStringLiteral("two-"));
    unique.removeDuplicates();
    EXPECT_EQ(unique.size(), Edits);
    ExpectAllTables(StoreProgram(Path()));
}

} // namespace
} // namespace LumetraTest
