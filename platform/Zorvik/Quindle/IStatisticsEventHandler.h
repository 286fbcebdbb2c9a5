// SPDX-License-Identifier: MIT
#pragma once

#include "ZorvikPlatformExport.h"

#include <map>
#include <string>

namespace Zorvik::Quindle {

/// Receives usage events, which say what the user applied, reset or marked. The host implements it
/// and decides what becomes of them.
class ZORVIKPLATFORM_EXPORT IStatisticsEventHandler
{
public:
    /// The parameters of a preset's event have these keys.
    static constexpr char KEY_EFFECT_GROUP[] = "effectGroup";
    static constexpr char KEY_EFFECT_NAME[] = "effectName";

    /// Takes one event. The library calls it after the state of a preset has changed, with a name
    /// that is never empty and parameters in UTF-8. An exception passes to whoever changed the
    /// preset, so an implementer reports its own failures elsewhere.
    virtual void SendEvent(const std::string& eventName,
                           const std::map<std::string, std::string>& parameters) = 0;

    virtual ~IStatisticsEventHandler();
};

} // namespace Zorvik::Quindle
