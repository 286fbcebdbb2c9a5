// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>
#include <vector>

namespace LumetraBench {

/// The outcome and the cost of a program, from its start to its end.
struct ChildResult
{
    bool isDone = false; ///< it ended with exit code 0
    double milliseconds = 0;
    double processorMilliseconds = 0;
    double peakMegabytes = 0; ///< largest resident memory of the process
};

/// Runs a program with its output thrown away and waits for it. The first word is the program,
/// which is searched for in the PATH.
ChildResult RunChild(const std::vector<std::string>& words);

/// True when the program is found in the PATH.
bool HasProgram(const std::string& name);

} // namespace LumetraBench
