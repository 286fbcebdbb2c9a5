// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/MonotoneCurve.h"
#include "engine/base/ParameterTable.h"

#include <vector>

namespace LumetraHost {

struct EffectKind;

/// Parametric curve: a tone curve on encoded values that is drawn by four regions between black,
/// three splits and white, instead of by points. It is the monotone curve (see MonotoneCurve, which
/// names the source) through black, the middles of the four regions and white. A middle rises, at
/// 100 per cent, by 0.45 of its distance to the next of these points, and sinks at -100 by as much
/// of its distance to the one before, so that the order of tones never turns. Beyond black and
/// white the curve is straight. Splits keep 5 per cent of distance from the middle one.
/// Source: the regions between movable splits are common to photo editors; the amounts are ours.
struct ParametricCurveParameters
{
    static constexpr char EffectId[] = "parametricCurve";

    double shadows = 0; ///< in all regions negative numbers darken
    double darks = 0;
    double lights = 0;
    double highlights = 0;
    double shadowSplit = 25; ///< between shadows and darks
    double midtoneSplit = 50;
    double highlightSplit = 75; ///< between lights and highlights

    static constexpr ParameterRow<ParametricCurveParameters> Table[] = {
        {"shadows", &ParametricCurveParameters::shadows, -100, 100, "%"},
        {"darks", &ParametricCurveParameters::darks, -100, 100, "%"},
        {"lights", &ParametricCurveParameters::lights, -100, 100, "%"},
        {"highlights", &ParametricCurveParameters::highlights, -100, 100, "%"},
        {"shadowSplit", &ParametricCurveParameters::shadowSplit, 10, 70, "%"},
        {"midtoneSplit", &ParametricCurveParameters::midtoneSplit, 20, 80, "%"},
        {"highlightSplit", &ParametricCurveParameters::highlightSplit, 30, 90, "%"}};

    bool IsIdentity() const;
    /// From black to white, x ascending.
    std::vector<CurvePoint> GetPoints() const;
};

EffectKind MakeParametricCurveKind();

} // namespace LumetraHost
