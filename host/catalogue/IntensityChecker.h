// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <set>
#include <string>

namespace LumetraHost {

class CheckedNode;

/// Checks intensity settings and the default sliders, which share the slider's stored form.
class IntensityChecker
{
public:
    /// Checks an intensity node: its kind and the node of that kind.
    static void Check(const CheckedNode& intensity);

    /// An error for each effect that a slider intensity drives and that is none of `effectIDs`, the
    /// preset's own: such a preset cannot be loaded. `item` is the preset, where the error stands.
    static void CheckEffects(const CheckedNode& intensity, const CheckedNode& item,
                             const std::set<std::string>& effectIDs);

    /// Checks a slider's title, range and variables; errors for variables without an existing
    /// parameter, warnings for ranges of one value.
    static void CheckSlider(const CheckedNode& slider);
};

} // namespace LumetraHost
