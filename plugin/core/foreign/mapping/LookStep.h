// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace LumetraPlugin {

/// The places that an imported look has for effects, in the order in which they run: light first,
/// then grey, curves and colours, then what belongs to the finished picture. Curves come after
/// grey, so that one per channel tints a black-and-white picture.
enum class LookStep
{
    Primaries,
    WhiteBalance,
    Exposure,
    Dehaze,
    ToneRegions,
    Contrast, ///< a parametric curve of its own
    Texture,
    Clarity,
    GreyMixer,
    BlackAndWhite,
    ParametricCurve,
    ToneCurve,
    ColourMixer,
    Vibrance,
    Saturation,
    Table,
    SplitToning,
    ColourGrading,
    Sharpen,
    Vignette,
    Grain
};

constexpr int LookSteps = static_cast<int>(LookStep::Grain) + 1;

/// The id of the effect that stands at a step.
const char* GetEffectId(LookStep step);

} // namespace LumetraPlugin
