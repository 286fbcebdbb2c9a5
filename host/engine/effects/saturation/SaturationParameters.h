// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/ColourMatrix.h"

#include "Zorvik/Quindle/EffectRegistry.h"
#include "Zorvik/Quindle/IEffectSettings.h"

#include <vector>

namespace LumetraHost {

/// Saturation: every colour moves away from the grey of its own luma, or towards it:
/// c = luma + s * (c - luma) with s = 1 + amount / 100 and the weights of Rec. 709, on encoded
/// values, where the luma stays what it was. Sources: W3C Filter Effects 1, feColorMatrix of type
/// saturate with sRGB as the space of filters; ASC CDL 1.2, its saturation step (which leaves the
/// space to the user).
struct SaturationParameters
{
    static constexpr char EffectId[] = "saturation";

    double amount = 0; ///< -100 (grey) to 100 (twice as saturated), per cent

    static const std::vector<Zorvik::Quindle::EffectParameter>& Describe();
    /// Clamped to the described ranges.
    static SaturationParameters Read(const Zorvik::Quindle::IEffectSettings& settings);

    bool IsIdentity() const { return amount == 0; }
    ColourMatrix GetMatrix() const;
};

bool operator==(const SaturationParameters& first, const SaturationParameters& second);

} // namespace LumetraHost
