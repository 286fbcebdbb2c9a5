// SPDX-License-Identifier: GPL-2.0-or-later
// The store under programs that are killed, and under two that work at once.
#include "StoreFixture.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

namespace LumetraTest {
namespace {

class StoreSafetyTest : public testing::Test
{
protected:
    QString Path() const { return m_folder.filePath(QStringLiteral("presets.json")); }

    QTemporaryDir m_folder;
};

/// Starts a program that saves one preset, and kills it after its system call number `calls`.
/// False when it ended before.
bool SaveAndKillAfter(const QString& path, const QString& name, int calls)
{
    const pid_t child = fork();
    if (child == 0) {
        ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
        raise(SIGSTOP);
        StoreProgram(path).SaveAs(name);
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0); // stopped by itself
    ptrace(PTRACE_SETOPTIONS, child, nullptr, PTRACE_O_EXITKILL | PTRACE_O_TRACESYSGOOD);
    for (int stop = 0; stop < 2 * calls; ++stop) { // each call stops at its begin and end
        ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
        waitpid(child, &status, 0);
        if (WIFEXITED(status) || WIFSIGNALED(status))
            return false;
    }
    kill(child, SIGKILL);
    while (!WIFSIGNALED(status) && waitpid(child, &status, 0) == child) {
    }
    return true;
}

TEST_F(StoreSafetyTest, losesNothingWhereverASaveIsKilled)
{
    StoreProgram(Path()).SaveAs(QStringLiteral("Kept"));
    int call = 1;
    bool isKilled = true;
    for (; isKilled; ++call) {
        SCOPED_TRACE(testing::Message() << "killed after system call " << call);
        isKilled = SaveAndKillAfter(Path(), QStringLiteral("Try%1").arg(call), call);
        const QStringList names = StoreProgram(Path()).Names();
        ASSERT_TRUE(names.contains(QStringLiteral("Kept")));
        ASSERT_EQ(names.filter(QStringLiteral("Try")).size(), names.size() - 1);
    }
    EXPECT_GT(call, 50);
    RecordProperty("kills", call);
    const QString last = QStringLiteral("Try%1").arg(call - 1);
    EXPECT_TRUE(StoreProgram(Path()).Names().contains(last)) << "a save that ends is there";
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
}

} // namespace
} // namespace LumetraTest
