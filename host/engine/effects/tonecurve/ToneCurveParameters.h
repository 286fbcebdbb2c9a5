// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/MonotoneCurve.h"

#include "Zorvik/Quindle/EffectRegistry.h"
#include "Zorvik/Quindle/IEffectSettings.h"

#include <array>
#include <vector>

namespace LumetraHost {

/// Tone curves on encoded values: the master curve on red, green and blue, then each channel's own
/// curve. A curve goes through up to eight points, monotone between them and straight beyond its
/// ends (see MonotoneCurve, which names the source). The parameter `points` says how many of the
/// pairs x0, y0 to x7, y7 count; with fewer than two there is no curve. The channels' parameters
/// begin with their colour: redPoints, redX0, redY0, and so on. The order of the points does not
/// matter; of two with the same x (to a hundredth of a per cent) the later one counts.
struct ToneCurveParameters
{
    static constexpr char EffectId[] = "toneCurve";
    static constexpr int MostPoints = 8;

    using Points = std::vector<CurvePoint>;

    Points master; ///< 0 to 1, x ascending; empty: no curve
    std::array<Points, 3> channels;

    static const std::vector<Zorvik::Quindle::EffectParameter>& Describe();
    /// Clamped to the described ranges.
    static ToneCurveParameters Read(const Zorvik::Quindle::IEffectSettings& settings);

    bool IsIdentity() const;
    /// True when there is no curve, or it runs along the diagonal.
    static bool IsIdentity(const Points& points);
};

} // namespace LumetraHost
