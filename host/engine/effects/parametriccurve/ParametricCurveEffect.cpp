// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/parametriccurve/ParametricCurveEffect.h"

#include "engine/effects/MakeKind.h"
#include "engine/effects/tonecurve/ToneCurveEffect.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace LumetraHost {
namespace {

constexpr double MostApproach = 0.45;
constexpr double LeastDistance = 5; // of splits, in per cent

StagePtr CreateStage(const ParametricCurveParameters& parameters, const StageContext& context)
{
    ToneCurveParameters curves;
    curves.master = parameters.GetPoints();
    return MakeToneCurveStage(curves, context);
}

} // namespace

bool ParametricCurveParameters::IsIdentity() const
{
    return shadows == 0 && darks == 0 && lights == 0 && highlights == 0;
}

std::vector<CurvePoint> ParametricCurveParameters::GetPoints() const
{
    const double second = midtoneSplit / 100;
    const double first = std::min(shadowSplit, midtoneSplit - LeastDistance) / 100;
    const double third = std::max(highlightSplit, midtoneSplit + LeastDistance) / 100;
    const std::array<double, 6> x = {
        0, first / 2, (first + second) / 2, (second + third) / 2, (third + 1) / 2, 1};
    const std::array<double, 4> amounts = {shadows, darks, lights, highlights};
    std::vector<CurvePoint> points = {{0, 0}};
    for (std::size_t i = 1; i <= amounts.size(); ++i) {
        const double amount = amounts[i - 1] / 100;
        const double distance = amount > 0 ? x[i + 1] - x[i] : x[i] - x[i - 1];
        points.push_back({x[i], x[i] + MostApproach * amount * distance});
    }
    points.push_back({1, 1});
    return points;
}

EffectKind MakeParametricCurveKind()
{
    return MakeKind(QT_TRANSLATE_NOOP("Effects", "Parametric curve"), CreateStage);
}

} // namespace LumetraHost
