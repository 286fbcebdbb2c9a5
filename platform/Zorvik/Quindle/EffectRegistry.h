// SPDX-License-Identifier: MIT
#pragma once

#include "Zorvik/Quindle/IEffectSettings.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace Zorvik::Quindle {

/// One number of an effect: its name, range, default and unit ("stops", "K", …).
struct EffectParameter
{
    std::string name;
    double minimum = 0;
    double maximum = 1;
    double defaultValue = 0;
    std::string unit;
};

/// What the host knows of one kind of effect. An empty `create` gives a plain effect with the
/// parameters at their defaults.
struct EffectDescriptor
{
    std::string effectID;
    std::vector<EffectParameter> parameters;
    std::function<EffectPtr()> create;
};

/// The kinds of effect that the running host can draw; one list for the whole process.
class ZORVIKPLATFORM_EXPORT EffectRegistry
{
public:
    /// Adds a kind, or replaces the one with the same id. Exception for an empty id, a parameter
    /// that occurs twice or is named "id", a number that is not finite and a default outside its
    /// range.
    static void Register(const EffectDescriptor& descriptor);
    static void Unregister(const std::string& effectID);
    /// Null when no such kind is registered.
    static std::shared_ptr<const EffectDescriptor> Find(const std::string& effectID);
    /// In ascending order.
    static std::vector<std::string> GetEffectIDs();
};

} // namespace Zorvik::Quindle
