// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace LumetraCli {

/// The program's exit codes.
enum class ExitCode
{
    Done = 0,
    SomeFailed = 1, ///< an input could not be used; the others were
    Usage = 2,      ///< the command line asks for something impossible; nothing was changed
    // Shells tell so of programs that a signal has ended: 128 and its number.
    Interrupted = 130, ///< SIGINT has come; every written file is whole
    Terminated = 143   ///< SIGTERM has come
};

} // namespace LumetraCli
