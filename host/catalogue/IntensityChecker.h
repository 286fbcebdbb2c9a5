// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <set>
#include <string>
#include <utility>
#include <vector>

namespace LumetraHost {

class CheckedNode;

/// The parameters that an extra slider moves. The first one's effect decides which presets offer
/// the slider.
struct SliderParameters
{
    std::string name;
    std::vector<std::pair<std::string, std::string>> parameters; ///< effect and setting
};

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

    /// A warning unless the first parameter that the intensity moves begins at a position of the
    /// slider: it is moved to the nearer end. `effects` holds the preset's effects.
    static void CheckStart(const CheckedNode& intensity, const CheckedNode& item,
                           const CheckedNode& effects);

    /// A warning for each parameter that the intensity moves and that an extra slider of the preset
    /// moves too: such a slider does nothing.
    static void CheckSharing(const CheckedNode& intensity, const CheckedNode& item,
                             const std::set<std::string>& effectIDs,
                             const std::vector<SliderParameters>& sliders);

    /// Checks a slider's title, range and variables; errors for ends that are no whole numbers of
    /// the program or too far apart and for variables without an existing parameter, warnings for
    /// fractions and for ranges of one value.
    static void CheckSlider(const CheckedNode& slider);
    /// The parameters of a slider without errors.
    static SliderParameters ReadParameters(const CheckedNode& slider);
};

} // namespace LumetraHost
