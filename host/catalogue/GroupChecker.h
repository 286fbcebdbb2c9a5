// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "catalogue/CheckedNode.h"
#include "catalogue/IntensityChecker.h"

#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

namespace LumetraHost {

/// A group with those of its presets that can be loaded.
struct CheckedGroup
{
    std::string name;
    CheckedNode node;
    std::optional<CheckedNode> settings;
    std::vector<CheckedNode> items;
};

/// Checks groups and their presets, and remembers the preset ids of all groups it has seen.
class GroupChecker
{
public:
    /// `controllerKinds`: the kinds of preset controller that can be made. `sliders`: the extra
    /// sliders that presets offer.
    explicit GroupChecker(const std::set<std::string>& controllerKinds,
                          std::vector<SliderParameters> sliders = {});

    /// The group without the presets that have an error; nothing when the error is in its own name
    /// or settings.
    std::optional<CheckedGroup> Check(const CheckedNode& group);

    /// Checks a preset by itself; whether its id is unique is not looked at. `groupIntensity` is
    /// that of presets without one.
    bool CheckPreset(const CheckedNode& item,
                     const std::optional<CheckedNode>& groupIntensity) const;

private:
    std::optional<std::string> CheckName(const CheckedNode& group);
    void CheckSettings(const CheckedNode& settings) const;
    void CheckKind(const CheckedNode& node) const;
    bool TakeId(const CheckedNode& item);
    std::vector<SliderParameters> SlidersOf(const CheckedNode& item) const;

    std::set<std::string> m_controllerKinds;
    std::vector<SliderParameters> m_sliders;
    std::set<std::string> m_groupNames;
    std::unordered_map<std::string, CheckedNode> m_ids; // with the preset that has it
};

} // namespace LumetraHost
