// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace LumetraEditor {

/// How many calls that may run a module's code are on the stack of the GUI thread. While there is
/// one, nothing of a module may be deleted.
class CallDepth
{
public:
    CallDepth() { ++depth; }
    ~CallDepth() { --depth; }
    CallDepth(const CallDepth&) = delete;
    CallDepth& operator=(const CallDepth&) = delete;

    static bool IsZero() { return depth == 0; }

private:
    inline static int depth = 0;
};

} // namespace LumetraEditor
