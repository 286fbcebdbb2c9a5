// SPDX-License-Identifier: MIT
#pragma once

#include "support/CallText.h"

#include <string>
#include <vector>

namespace LumetraTest {

/// The one ordered record of every call that crosses the boundary between the library and its
/// host, a line of text each: "drawer.ApplyEffect([tone{gain: 0.5}], {})". Shared by all recording
/// classes of a test; must outlive them.
class CallLog
{
public:
    /// Stops recording while it lives, for calls that a recording class makes on its own account.
    class Pause
    {
    public:
        explicit Pause(CallLog& log);
        ~Pause();

        Pause(const Pause&) = delete;
        Pause& operator=(const Pause&) = delete;

    private:
        CallLog& m_log;
    };

    void Add(const std::string& line);

    /// Adds "name(argument, argument)".
    template <class... Arguments>
    void Call(const std::string& name, const Arguments&... arguments)
    {
        Add(name + "(" + JoinTexts({CallText(arguments)...}) + ")");
    }

    const std::vector<std::string>& GetLines() const;
    /// The lines that begin with `prefix`.
    std::vector<std::string> GetLines(const std::string& prefix) const;
    /// All lines so far, which are then forgotten.
    std::vector<std::string> Take();
    void Clear();

private:
    std::vector<std::string> m_lines;
    int m_pauses = 0;
};

} // namespace LumetraTest
