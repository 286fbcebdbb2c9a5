// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "console/ExitCode.h"
#include "threads/CancelToken.h"

#include <csignal>

namespace LumetraCli {

/// While it lives, SIGINT (Ctrl+C) and SIGTERM ask the work that knows its token to end. The second
/// one ends the program at once, as without this class. A signal that is ignored, as in a program
/// under nohup, stays ignored. One of them may live at a time.
class Interruption
{
public:
    Interruption();
    ~Interruption();
    Interruption(const Interruption&) = delete;
    Interruption& operator=(const Interruption&) = delete;

    const LumetraHost::CancelToken& GetToken() const;
    bool HasCome() const { return GetToken().IsCancelled(); }
    /// The exit code that tells of the signal; `code` when none has come.
    ExitCode GetExitCode(ExitCode code) const;

private:
    struct sigaction m_interrupt = {};
    struct sigaction m_terminate = {};
};

} // namespace LumetraCli
