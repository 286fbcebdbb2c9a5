// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/toneregions/ToneRegionsParameters.h"

#include "engine/base/ParameterReader.h"
#include "engine/base/Srgb.h"

#include <algorithm>
#include <cmath>

namespace LumetraHost {
namespace {

// Neighbouring regions keep at least this part of their distance.
constexpr double LeastSlope = 0.05;
constexpr std::size_t Midtones = 2;

} // namespace

const std::vector<Zorvik::Quindle::EffectParameter>& ToneRegionsParameters::Describe()
{
    static const std::vector<Zorvik::Quindle::EffectParameter> parameters = {
        {"blacks", -100, 100, 0, "%"},
        {"shadows", -100, 100, 0, "%"},
        {"midtones", -100, 100, 0, "%"},
        {"highlights", -100, 100, 0, "%"},
        {"whites", -100, 100, 0, "%"}};
    return parameters;
}

ToneRegionsParameters ToneRegionsParameters::Read(const Zorvik::Quindle::IEffectSettings& settings)
{
    const ParameterReader reader(settings, Describe());
    ToneRegionsParameters result;
    result.blacks = reader.Get("blacks");
    result.shadows = reader.Get("shadows");
    result.midtones = reader.Get("midtones");
    result.highlights = reader.Get("highlights");
    result.whites = reader.Get("whites");
    return result;
}

bool ToneRegionsParameters::IsIdentity() const
{
    return blacks == 0 && shadows == 0 && midtones == 0 && highlights == 0 && whites == 0;
}

MonotoneCurve ToneRegionsParameters::GetCurve() const
{
    const double middle = std::log2(MiddleGrey);
    std::vector<CurvePoint> points = {{-8, -8 + 2 * blacks / 100},
                                      {-5, -5 + 1.5 * shadows / 100},
                                      {middle, middle + midtones / 100},
                                      {-1, -1 + 0.75 * highlights / 100},
                                      {0, 0.75 * whites / 100}};
    const auto least = [&points](std::size_t i) {
        return LeastSlope * (points[i + 1].x - points[i].x);
    };
    for (std::size_t i = Midtones; i + 1 < points.size(); ++i)
        points[i + 1].y = std::max(points[i + 1].y, points[i].y + least(i));
    for (std::size_t i = Midtones; i > 0; --i)
        points[i - 1].y = std::min(points[i - 1].y, points[i].y - least(i - 1));
    return MonotoneCurve::Make(points, 1);
}

} // namespace LumetraHost
