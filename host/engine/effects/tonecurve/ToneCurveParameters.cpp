// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/tonecurve/ToneCurveParameters.h"

#include "engine/base/ParameterReader.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectParameter;

// Closer points are one.
constexpr double LeastDistance = 1e-4;

struct CurveNames
{
    std::string points;
    std::string x;
    std::string y;
};

const CurveNames MasterNames = {"points", "x", "y"};
const CurveNames ChannelNames[3] = {{"redPoints", "redX", "redY"},
                                    {"greenPoints", "greenX", "greenY"},
                                    {"bluePoints", "blueX", "blueY"}};

void DescribeCurve(const CurveNames& names, std::vector<EffectParameter>& parameters)
{
    parameters.push_back({names.points, 0, ToneCurveParameters::MostPoints, 0, "points"});
    for (int i = 0; i < ToneCurveParameters::MostPoints; ++i) {
        parameters.push_back({names.x + std::to_string(i), 0, 100, 0, "%"});
        parameters.push_back({names.y + std::to_string(i), 0, 100, 0, "%"});
    }
}

ToneCurveParameters::Points ReadCurve(const ParameterReader& reader, const CurveNames& names)
{
    ToneCurveParameters::Points points;
    const int count = static_cast<int>(std::lround(reader.Get(names.points)));
    for (int i = 0; i < count; ++i)
        points.push_back({reader.Get(names.x + std::to_string(i)) / 100,
                          reader.Get(names.y + std::to_string(i)) / 100});
    std::stable_sort(points.begin(), points.end(),
                     [](const CurvePoint& a, const CurvePoint& b) { return a.x < b.x; });
    ToneCurveParameters::Points distinct;
    for (const CurvePoint& point : points) {
        if (!distinct.empty() && point.x - distinct.back().x < LeastDistance)
            distinct.back().y = point.y;
        else
            distinct.push_back(point);
    }
    return distinct.size() < 2 ? ToneCurveParameters::Points() : distinct;
}

} // namespace

const std::vector<EffectParameter>& ToneCurveParameters::Describe()
{
    static const auto parameters = [] {
        std::vector<EffectParameter> all;
        DescribeCurve(MasterNames, all);
        for (const CurveNames& names : ChannelNames)
            DescribeCurve(names, all);
        return all;
    }();
    return parameters;
}

ToneCurveParameters ToneCurveParameters::Read(const Zorvik::Quindle::IEffectSettings& settings)
{
    const ParameterReader reader(settings, Describe());
    ToneCurveParameters result;
    result.master = ReadCurve(reader, MasterNames);
    for (std::size_t i = 0; i < 3; ++i)
        result.channels[i] = ReadCurve(reader, ChannelNames[i]);
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

} // namespace LumetraHost
