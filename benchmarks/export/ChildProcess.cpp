// SPDX-License-Identifier: GPL-2.0-or-later
#include "ChildProcess.h"

#include <QStandardPaths>

#include <chrono>

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace LumetraBench {
namespace {

double ToMilliseconds(const timeval& time)
{
    return 1e3 * double(time.tv_sec) + 1e-3 * double(time.tv_usec);
}

} // namespace

ChildResult RunChild(const std::vector<std::string>& words)
{
    std::vector<char*> arguments;
    for (const std::string& word : words)
        arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);

    ChildResult result;
    pid_t child = 0;
    const auto begin = std::chrono::steady_clock::now();
    const int error =
        posix_spawnp(&child, arguments[0], &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (error != 0)
        return result;
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    const auto elapsed = std::chrono::steady_clock::now() - begin;
    result.isDone = WIFEXITED(status) && WEXITSTATUS(status) == 0;
    result.milliseconds = std::chrono::duration<double, std::milli>(elapsed).count();
    result.processorMilliseconds = ToMilliseconds(usage.ru_utime) + ToMilliseconds(usage.ru_stime);
    result.peakMegabytes = double(usage.ru_maxrss) / 1024;
    return result;
}

bool HasProgram(const std::string& name)
{
    return !QStandardPaths::findExecutable(QString::fromStdString(name)).isEmpty();
}

} // namespace LumetraBench
