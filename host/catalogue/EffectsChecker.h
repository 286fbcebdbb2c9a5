// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <optional>
#include <set>
#include <string>

namespace LumetraHost {

class CheckedNode;

/// Checks a preset's list of effects against the effects that are registered.
class EffectsChecker
{
public:
    /// Checks the list of effects in `holder` and returns their ids. Errors for an unknown effect,
    /// an unknown numeric parameter, a value of the wrong kind and a table that is only named;
    /// warnings for a parameter out of its range (it is loaded as it stands and drawn clamped), an
    /// effect that stands there twice, and a list without effects.
    static std::set<std::string> Check(const CheckedNode& holder);

    /// An error at `key` unless the registered effect `effectID` has the parameter `parameter`.
    static void CheckParameter(const CheckedNode& node, const std::string& key,
                               const std::string& effectID, const std::string& parameter);

    /// A warning at `key` unless the number there is within the range of that parameter, if there
    /// is such a parameter.
    static void CheckRange(const CheckedNode& node, const std::string& key,
                           const std::string& effectID, const std::string& parameter);
    /// The number that the first such effect in `holder` begins with: the stored one, else the
    /// default. Nothing without such an effect or parameter.
    static std::optional<double> FindValue(const CheckedNode& holder, const std::string& effectID,
                                           const std::string& parameter);
    /// The largest value less the smallest one; infinite without such a parameter.
    static double GetWidth(const std::string& effectID, const std::string& parameter);
};

} // namespace LumetraHost
