// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/tonecurve/ToneCurveEffect.h"

#include "engine/effects/MakeKind.h"
#include "engine/effects/tonecurve/ToneCurveKernel.h"
#include "engine/kernels/KernelSelection.h"
#include "engine/stages/KernelStage.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectParameter;
using Zorvik::Quindle::IEffectSettings;
using Points = ToneCurveParameters::Points;

// Points that are closer than this count as one.
constexpr double LeastDistance = 1e-4;

// One curve has a number that says how many points count, then x and y of each.
constexpr std::size_t NumbersOfCurve = 1 + 2 * ToneCurveParameters::MostPoints;

void DescribeCurve(const char* points, const char* x, const char* y,
                   std::vector<EffectParameter>& parameters)
{
    parameters.push_back({points, 0, ToneCurveParameters::MostPoints, 0, Units::Points});
    for (int i = 0; i < ToneCurveParameters::MostPoints; ++i) {
        parameters.push_back({x + std::to_string(i), 0, 100, 0, "%"});
        parameters.push_back({y + std::to_string(i), 0, 100, 0, "%"});
    }
}

/// Returns the points in the order in which they are stored. `numbers` describes one curve.
Points ReadPoints(const IEffectSettings& settings, const EffectParameter* numbers)
{
    Points points(static_cast<std::size_t>(std::lround(ReadNumber(settings, *numbers))));
    for (CurvePoint& point : points) {
        point.x = ReadNumber(settings, *++numbers) / 100;
        point.y = ReadNumber(settings, *++numbers) / 100;
    }
    return points;
}

Points ReadCurve(const IEffectSettings& settings, const EffectParameter* numbers)
{
    Points points = ReadPoints(settings, numbers);
    std::stable_sort(points.begin(), points.end(),
                     [](const CurvePoint& a, const CurvePoint& b) { return a.x < b.x; });
    Points distinct;
    for (const CurvePoint& point : points) {
        if (!distinct.empty() && point.x - distinct.back().x < LeastDistance)
            distinct.back().y = point.y;
        else
            distinct.push_back(point);
    }
    return distinct.size() < 2 ? Points() : distinct;
}

static_assert(ToneCurveNumbers::MostPieces == ToneCurveParameters::MostPoints - 1);

ToneCurveNumbers GetNumbers(const Points& points)
{
    ToneCurveNumbers numbers;
    if (ToneCurveParameters::IsIdentity(points))
        return numbers;
    const auto curve = MonotoneCurve::Make(points);
    numbers.start = static_cast<float>(points.front().y);
    numbers.first = static_cast<float>(points.front().x);
    numbers.last = static_cast<float>(points.back().x);
    numbers.before = static_cast<float>(curve.GetSlopeBefore());
    numbers.after = static_cast<float>(curve.GetSlopeAfter());
    for (const MonotoneCurve::Piece& piece : curve.GetPieces()) {
        const int i = numbers.pieces++;
        numbers.begin[i] = static_cast<float>(piece.start.x);
        numbers.width[i] = static_cast<float>(piece.width);
        numbers.linear[i] = static_cast<float>(piece.linear);
        numbers.square[i] = static_cast<float>(piece.square);
        numbers.cube[i] = static_cast<float>(piece.cube);
    }
    return numbers;
}

} // namespace

template <>
const std::vector<EffectParameter>& DescribeParameters<ToneCurveParameters>()
{
    static const auto parameters = [] {
        std::vector<EffectParameter> all;
        DescribeCurve("points", "x", "y", all);
        DescribeCurve("redPoints", "redX", "redY", all);
        DescribeCurve("greenPoints", "greenX", "greenY", all);
        DescribeCurve("bluePoints", "blueX", "blueY", all);
        return all;
    }();
    return parameters;
}

template <>
ToneCurveParameters ReadParameters<ToneCurveParameters>(const IEffectSettings& settings)
{
    const EffectParameter* numbers = DescribeParameters<ToneCurveParameters>().data();
    ToneCurveParameters result;
    result.master = ReadCurve(settings, numbers);
    for (Points& channel : result.channels)
        channel = ReadCurve(settings, numbers += NumbersOfCurve);
    return result;
}

bool ToneCurveParameters::IsIdentity() const
{
    return IsIdentity(master) && IsIdentity(channels[0]) && IsIdentity(channels[1]) &&
           IsIdentity(channels[2]);
}

bool ToneCurveParameters::IsIdentity(const Points& points)
{
    return std::all_of(points.begin(), points.end(),
                       [](const CurvePoint& point) { return point.x == point.y; });
}

StagePtr MakeToneCurveStage(const ToneCurveParameters& curves, const StageContext& context)
{
    ToneCurvesNumbers numbers;
    numbers.master = GetNumbers(curves.master);
    for (std::size_t i = 0; i < 3; ++i)
        numbers.channels[i] = GetNumbers(curves.channels[i]);
    return MakeKernelStage(SelectKernel<ToneCurveKernel>(context.isa), ColourSpace::Encoded,
                           ChannelWork::Heavy, numbers);
}

EffectKind MakeToneCurveKind()
{
    return MakeKind(QT_TRANSLATE_NOOP("Effects", "Tone curve"), MakeToneCurveStage);
}

} // namespace LumetraHost
