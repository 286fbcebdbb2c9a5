// SPDX-License-Identifier: MIT
#pragma once

#include "Zorvik/Quindle/IStatisticsEventHandler.h"

namespace LumetraTest {

class CallLog;

/// Records every usage event.
class RecordingStatistics : public Zorvik::Quindle::IStatisticsEventHandler
{
public:
    explicit RecordingStatistics(CallLog& log);

    void SendEvent(const std::string& eventName,
                   const std::map<std::string, std::string>& parameters) override;

private:
    CallLog& m_log;
};

} // namespace LumetraTest
