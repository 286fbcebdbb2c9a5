// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/MonotoneCurve.h"
#include "engine/base/ParameterTable.h"
#include "engine/stages/Stage.h"

#include <array>
#include <vector>

namespace LumetraHost {

struct EffectKind;

/// Tone curves on encoded values: the master curve on red, green and blue, then each channel's own
/// curve. A curve goes through up to sixteen points, monotone between them and straight beyond its
/// ends (see MonotoneCurve, which names the source). The parameter `points` says how many of the
/// pairs x0, y0 to x15, y15 count; with fewer than two there is no curve. The channels' parameters
/// begin with their colour: redPoints, redX0, redY0, and so on. The order of the points does not
/// matter; of two with the same x (to a hundredth of a per cent) the later one counts.
struct ToneCurveParameters
{
    static constexpr char EffectId[] = "toneCurve";
    static constexpr int MostPoints = 16;

    using Points = std::vector<CurvePoint>;

    Points master; ///< from 0 to 1, x ascending; without points there is no curve
    std::array<Points, 3> channels;

    bool IsIdentity() const;
    /// True when there is no curve, or it runs along the diagonal.
    static bool IsIdentity(const Points& points);
};

template <>
const std::vector<Zorvik::Quindle::EffectParameter>& DescribeParameters<ToneCurveParameters>();
template <>
ToneCurveParameters
ReadParameters<ToneCurveParameters>(const Zorvik::Quindle::IEffectSettings& settings);

/// The curves ready to run, whoever they were made by.
StagePtr MakeToneCurveStage(const ToneCurveParameters& curves, const StageContext& context);

EffectKind MakeToneCurveKind();

} // namespace LumetraHost
