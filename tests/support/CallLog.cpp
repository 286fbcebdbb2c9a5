// SPDX-License-Identifier: MIT
#include "support/CallLog.h"

#include <utility>

namespace LumetraTest {

CallLog::Pause::Pause(CallLog& log) : m_log(log)
{
    ++m_log.m_pauses;
}

CallLog::Pause::~Pause()
{
    --m_log.m_pauses;
}

void CallLog::Add(const std::string& line)
{
    if (m_pauses == 0)
        m_lines.push_back(line);
}

const std::vector<std::string>& CallLog::GetLines() const
{
    return m_lines;
}

std::vector<std::string> CallLog::GetLines(const std::string& prefix) const
{
    std::vector<std::string> found;
    for (const std::string& line : m_lines)
        if (line.compare(0, prefix.size(), prefix) == 0)
            found.push_back(line);
    return found;
}

std::vector<std::string> CallLog::Take()
{
    return std::exchange(m_lines, {});
}

void CallLog::Clear()
{
    m_lines.clear();
}

} // namespace LumetraTest
