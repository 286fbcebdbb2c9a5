// SPDX-License-Identifier: MIT
#pragma once

#include "Zorvik/Quindle/IStatisticsEventHandler.h"

#include <utility>
#include <vector>

namespace LumetraTest {

class CallLog;

/// Records every usage event, and keeps them all.
class RecordingStatistics : public Zorvik::Quindle::IStatisticsEventHandler
{
public:
    using Event = std::pair<std::string, std::map<std::string, std::string>>;

    explicit RecordingStatistics(CallLog& log);

    const std::vector<Event>& GetEvents() const;

    void SendEvent(const std::string& eventName,
                   const std::map<std::string, std::string>& parameters) override;

private:
    CallLog& m_log;
    std::vector<Event> m_events;
};

} // namespace LumetraTest
