// SPDX-License-Identifier: MIT
#pragma once

#include "Zorvik/Quindle/IEffectSettings.h"

#include <string>

namespace Zorvik::Lumetra {

/// Reads and writes an effect's parameter by its name, for sliders. A null effect is an Exception.
class ZORVIKPLATFORM_EXPORT InvokeEffectHelper
{
public:
    /// Returns the parameter `setting` of `effect`, unrounded. A parameter that the effect does not
    /// have is an Exception of the effect.
    static double InvokeGet(const std::string& setting, const Quindle::ConstEffectPtr& effect);
    /// Sets the parameter `setting` of `effect` to `value`, unrounded and unclamped; a value that
    /// is not finite changes nothing. A parameter that the effect does not have is an Exception of
    /// the effect.
    static void InvokeSet(const std::string& setting, const Quindle::EffectPtr& effect,
                          double value);
    /// True when the registered effect `effectID` has a parameter `setting`. An effect that is not
    /// in the EffectRegistry has none, whatever its stored form holds.
    static bool MethodExists(const std::string& setting, const std::string& effectID);
};

} // namespace Zorvik::Lumetra
