// SPDX-License-Identifier: MIT
#pragma once

#include "Zorvik/Quindle/IEffectSettings.h"

#include <string>

namespace Zorvik::Lumetra {

/// Reads and writes an effect's parameter by its name. A null effect is an Exception.
class ZORVIKPLATFORM_EXPORT InvokeEffectHelper
{
public:
    static double InvokeGet(const std::string& setting, const Quindle::ConstEffectPtr& effect);
    static void InvokeSet(const std::string& setting, const Quindle::EffectPtr& effect,
                          double value);
    /// True when the registered effect `effectID` has a parameter `setting`; false for an unknown
    /// effect.
    static bool MethodExists(const std::string& setting, const std::string& effectID);
};

} // namespace Zorvik::Lumetra
