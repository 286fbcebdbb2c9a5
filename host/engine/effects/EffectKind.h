// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/stages/SpatialPass.h"
#include "engine/stages/Stage.h"

#include "Zorvik/Quindle/EffectRegistry.h"
#include "Zorvik/Quindle/IEffectSettings.h"

#include <functional>

namespace LumetraHost {

/// How far an effect looks to make one pixel. Only effects of colour alone can be put into a lookup
/// table; only effects without neighbours can be drawn tile by tile.
enum class EffectReach
{
    ColourOnly,   ///< the pixel's own colour
    Positional,   ///< its colour and where it lies in the picture
    WholePicture, ///< those, and facts of the whole picture, see PictureFacts
    Spatial       ///< its neighbours too
};

/// One kind of effect as the engine knows it: how it is described to the platform, and how settings
/// become something that can be drawn: a stage, or for a spatial effect a pass. Every effect's
/// defaults change nothing.
struct EffectKind
{
    Zorvik::Quindle::EffectDescriptor descriptor;
    /// The effect's name for the user in English; its translation has the context "Effects".
    const char* title = "";
    /// Null when the settings change nothing, and for every spatial effect. Parameters out of range
    /// are clamped; those that the settings do not have, and NaN, count as the default.
    std::function<StagePtr(const Zorvik::Quindle::IEffectSettings&, const StageContext&)>
        createStage;
    EffectReach reach = EffectReach::ColourOnly;
    /// Null when the settings change nothing. Only spatial effects have this function.
    std::function<SpatialPassPtr(const Zorvik::Quindle::IEffectSettings&, const StageContext&)>
        createPass = {};
};

} // namespace LumetraHost
