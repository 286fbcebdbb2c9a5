// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace LumetraEditor {

/// Counts the calls on the GUI thread's stack that may run a module's code. Nothing of a module may
/// be deleted before the last one returns.
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
