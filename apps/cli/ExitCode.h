// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace LumetraCli {

/// What the program tells the shell.
enum class ExitCode
{
    Done = 0,
    SomeFailed = 1, ///< an input could not be used; the others were
    Usage = 2       ///< the command line asks for something that cannot be done; nothing was
};

} // namespace LumetraCli
