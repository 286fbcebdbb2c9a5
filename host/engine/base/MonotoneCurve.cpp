// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/base/MonotoneCurve.h"

#include <cmath>
#include <cstddef>

namespace LumetraHost {
namespace {

std::vector<double> GetSecants(const std::vector<CurvePoint>& points)
{
    std::vector<double> secants;
    for (std::size_t i = 1; i < points.size(); ++i)
        secants.push_back((points[i].y - points[i - 1].y) / (points[i].x - points[i - 1].x));
    return secants;
}

// A turn of direction gets a level tangent.
double GetInnerTangent(double before, double after)
{
    return before * after <= 0 ? 0 : (before + after) / 2;
}

// Keeps the pair of tangents inside the circle of radius 3 in which a piece is monotone.
void LimitTangents(double secant, double& first, double& last)
{
    if (secant == 0) {
        first = last = 0;
        return;
    }
    const double length = std::hypot(first / secant, last / secant);
    if (length > 3) {
        first *= 3 / length;
        last *= 3 / length;
    }
}

} // namespace

MonotoneCurve MonotoneCurve::Make(const std::vector<CurvePoint>& points)
{
    const auto secants = GetSecants(points);
    return Make(points, secants.front(), secants.back());
}

MonotoneCurve MonotoneCurve::Make(const std::vector<CurvePoint>& points, double endSlope)
{
    MonotoneCurve curve = Make(points, endSlope, endSlope);
    curve.m_slopeBefore = curve.m_slopeAfter = endSlope;
    return curve;
}

MonotoneCurve MonotoneCurve::Make(const std::vector<CurvePoint>& points, double first, double last)
{
    const auto secants = GetSecants(points);
    std::vector<double> tangents{first};
    for (std::size_t i = 1; i < secants.size(); ++i)
        tangents.push_back(GetInnerTangent(secants[i - 1], secants[i]));
    tangents.push_back(last);
    for (std::size_t i = 0; i < secants.size(); ++i)
        LimitTangents(secants[i], tangents[i], tangents[i + 1]);

    MonotoneCurve curve;
    for (std::size_t i = 0; i < secants.size(); ++i) {
        const double width = points[i + 1].x - points[i].x;
        curve.m_pieces.push_back(
            {points[i], width, tangents[i],
             (3 * secants[i] - 2 * tangents[i] - tangents[i + 1]) / width,
             (tangents[i] + tangents[i + 1] - 2 * secants[i]) / (width * width)});
    }
    curve.m_slopeBefore = tangents.front();
    curve.m_slopeAfter = tangents.back();
    return curve;
}

} // namespace LumetraHost
