// SPDX-License-Identifier: MIT
#pragma once

#include "Zorvik/Quindle/EffectsSettings.h"

#include <QString>

#include <optional>
#include <string>
#include <vector>

namespace LumetraEditor {

/// One number of an effect that a slider moves: from `begin`, at the slider's lowest position, to
/// `end` at its highest. Both lie in the parameter's range and differ.
struct LookVariable
{
    std::string effectID; ///< of an effect of the look; the first one of several
    std::string parameter;
    double begin = 0;
    double end = 0;
};

/// An extra slider that the look offers to its users. It stands where the look's effects are.
struct LookSlider
{
    QString title;                       ///< for the user
    int begin = 0;                       ///< the lowest position; less than the highest
    int end = 100;                       ///< the highest position
    std::vector<LookVariable> variables; ///< at least one
};

/// A look that one module hands over and another one keeps among the looks of the user.
struct NewLook
{
    enum class Intensity
    {
        None,    ///< the look has no intensity: it is used as it is
        Blend,   ///< the intensity mixes the look with the photo
        Sliders, ///< the intensity moves `variables`
    };

    /// The name for the user, of 1 to 50 characters without control characters, that no other look
    /// of the user has. Spaces around it do not count.
    QString name;
    /// The effects, at least one, none of them null. The blend amount is the intensity that a look
    /// of kind Blend starts with, kept to the next percent; the other kinds have the full effect.
    /// The names and the index of the package do not count.
    Zorvik::Quindle::EffectsSettings settings{Zorvik::Quindle::EffectsSettings::PhotoAlone};
    Intensity intensity = Intensity::Blend;
    /// The parameters that an intensity of kind Sliders moves, from 0 to 100 per cent; at least one
    /// then. The look starts at 100 where its effects have the values at the end.
    std::vector<LookVariable> variables;
    /// The extra sliders of the look; they move other parameters than the intensity does. Without a
    /// value the look offers those that the catalogue has for its effects, whose positions may
    /// round its numbers.
    std::optional<std::vector<LookSlider>> sliders;
};

} // namespace LumetraEditor
