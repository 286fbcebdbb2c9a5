// SPDX-License-Identifier: MIT
#pragma once

#include "Zorvik/Quindle/IEffectSettings.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace Zorvik::Quindle {

/// Describes one number of an effect. The host's pixel code clamps it to its range; effects store
/// values outside the range too.
struct EffectParameter
{
    std::string name; ///< The key in the stored form; neither empty nor "id".
    double minimum = 0;
    double maximum = 1;
    double defaultValue = 0; ///< A value from `minimum` to `maximum`.
    std::string unit;        ///< The unit for display, such as "stops" or "K"; it may be empty.
};

/// Describes one kind of effect that the host can draw.
struct EffectDescriptor
{
    std::string effectID; ///< The id in stored forms; not empty.
    std::vector<EffectParameter> parameters;
    /// Makes a new effect of this kind with its defaults. An empty function, or one that returns
    /// null, gives an EffectSettingsImpl with the parameters above.
    std::function<EffectPtr()> create;
};

/// Lists the kinds of effect that the running host can draw, once for the whole process. The host
/// registers them before it reads a catalogue: sliders are checked against this list.
class ZORVIKPLATFORM_EXPORT EffectRegistry
{
public:
    /// Adds a copy of `descriptor`, or replaces the kind with the same id; effects made before stay
    /// as they are. An Exception, with the list unchanged, is thrown for an empty id, a parameter
    /// that occurs twice or is named "" or "id", a number that is not finite and a default outside
    /// its range.
    static void Register(const EffectDescriptor& descriptor);
    /// Removes the kind of that id and does nothing for an unknown one. Effects made before stay as
    /// they are.
    static void Unregister(const std::string& effectID);
    /// Returns the kind of that id, null when none is registered. The result outlives a later
    /// replacement or removal.
    static std::shared_ptr<const EffectDescriptor> Find(const std::string& effectID);
    /// Returns the ids of all kinds in ascending order of their bytes.
    static std::vector<std::string> GetEffectIDs();
};

} // namespace Zorvik::Quindle
