// SPDX-License-Identifier: MIT
#include "support/RecordingStatistics.h"

#include "support/CallLog.h"

namespace LumetraTest {

RecordingStatistics::RecordingStatistics(CallLog& log) : m_log(log) {}

const std::vector<RecordingStatistics::Event>& RecordingStatistics::GetEvents() const
{
    return m_events;
}

void RecordingStatistics::SendEvent(const std::string& eventName,
                                    const std::map<std::string, std::string>& parameters)
{
    m_log.Call("statistics.SendEvent", eventName, parameters);
    m_events.emplace_back(eventName, parameters);
}

} // namespace LumetraTest
