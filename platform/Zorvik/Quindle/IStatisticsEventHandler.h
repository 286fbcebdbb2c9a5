// SPDX-License-Identifier: MIT
#pragma once

#include "ZorvikPlatformExport.h"

#include <map>
#include <string>

namespace Zorvik::Quindle {

/// Receives usage events: what the user applied, reset or marked.
class ZORVIKPLATFORM_EXPORT IStatisticsEventHandler
{
public:
    static constexpr char KEY_EFFECT_GROUP[] = "effectGroup";
    static constexpr char KEY_EFFECT_NAME[] = "effectName";

    virtual void SendEvent(const std::string& eventName,
                           const std::map<std::string, std::string>& parameters) = 0;

    virtual ~IStatisticsEventHandler();
};

} // namespace Zorvik::Quindle
