// SPDX-License-Identifier: GPL-2.0-or-later
#include "adjust/curve/CurvePoints.h"

#include <algorithm>
#include <cmath>

namespace LumetraAdjust {
namespace {

constexpr double Whole = 100; // per cent

/// The names of the numbers of one curve.
struct Names
{
    const char* points;
    const char* x;
    const char* y;
};
constexpr Names NamesOfChannels[CurvePoints::Channels] = {{"points", "x", "y"},
                                                          {"redPoints", "redX", "redY"},
                                                          {"greenPoints", "greenX", "greenY"},
                                                          {"bluePoints", "blueX", "blueY"}};

double Secant(const QPointF& from, const QPointF& to)
{
    return (to.y() - from.y()) / (to.x() - from.x());
}

/// Sorts the points and leaves out those that are too near to the one before.
std::vector<QPointF> Order(std::vector<QPointF> points)
{
    std::stable_sort(points.begin(), points.end(),
                     [](const QPointF& a, const QPointF& b) { return a.x() < b.x(); });
    std::vector<QPointF> distinct;
    for (const QPointF& point : points) {
        if (!distinct.empty() && point.x() - distinct.back().x() < 0.01)
            distinct.back().setY(point.y());
        else
            distinct.push_back(point);
    }
    return distinct;
}

/// Keeps a pair of tangents where the cubic between them is monotone: in the circle of radius 3
/// around the secant, after F. N. Fritsch and R. E. Carlson, "Monotone Piecewise Cubic
/// Interpolation", SIAM Journal on Numerical Analysis 17 (1980).
void Limit(double secant, double& first, double& last)
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

CurvePoints::CurvePoints() : m_points{{0, 0}, {Whole, Whole}} {}

CurvePoints CurvePoints::Read(const Adjustments& adjustments, int channel)
{
    const Names& names = NamesOfChannels[channel];
    const int count = static_cast<int>(
        std::clamp(std::lround(adjustments.Get(EffectID, names.points)), 0L, long(MostPoints)));
    std::vector<QPointF> points;
    for (int i = 0; i < count; ++i) {
        const auto get = [&](const char* name) {
            return std::clamp(adjustments.Get(EffectID, name + std::to_string(i)), 0.0, Whole);
        };
        points.emplace_back(get(names.x), get(names.y));
    }
    CurvePoints curve;
    points = Order(std::move(points));
    if (points.size() >= 2)
        curve.m_points = std::move(points);
    return curve;
}

Adjustments::Values CurvePoints::Write(int channel) const
{
    const Names& names = NamesOfChannels[channel];
    const int count = IsDiagonal() ? 0 : Count();
    Adjustments::Values values{{names.points, count}};
    for (int i = 0; i < MostPoints; ++i) {
        const QPointF point = i < count ? m_points[static_cast<std::size_t>(i)] : QPointF();
        values.emplace_back(names.x + std::to_string(i), point.x());
        values.emplace_back(names.y + std::to_string(i), point.y());
    }
    return values;
}

bool CurvePoints::IsDiagonal() const
{
    return std::all_of(m_points.begin(), m_points.end(),
                       [](const QPointF& point) { return point.x() == point.y(); });
}

std::optional<int> CurvePoints::Add(const QPointF& point)
{
    const double x = std::clamp(point.x(), 0.0, Whole);
    const bool isNear = std::any_of(m_points.begin(), m_points.end(), [x](const QPointF& other) {
        return std::abs(other.x() - x) < LeastDistance;
    });
    if (isNear || Count() >= MostPoints)
        return std::nullopt;
    const auto next = std::find_if(m_points.begin(), m_points.end(),
                                   [x](const QPointF& other) { return other.x() > x; });
    const auto added = m_points.insert(next, QPointF(x, std::clamp(point.y(), 0.0, Whole)));
    return static_cast<int>(added - m_points.begin());
}

void CurvePoints::Move(int position, const QPointF& to)
{
    const auto at = static_cast<std::size_t>(position);
    const double lowest = position > 0 ? m_points[at - 1].x() + LeastDistance : 0;
    const double highest = position + 1 < Count() ? m_points[at + 1].x() - LeastDistance : Whole;
    // Neighbours that were stored nearer than that leave no room: x then stays.
    const double x = lowest <= highest ? std::clamp(to.x(), lowest, highest) : m_points[at].x();
    m_points[at] = {x, std::clamp(to.y(), 0.0, Whole)};
}

bool CurvePoints::Remove(int position)
{
    if (Count() <= 2 || position < 0 || position >= Count())
        return false;
    m_points.erase(m_points.begin() + position);
    return true;
}

std::vector<double> CurvePoints::GetTangents() const
{
    std::vector<double> secants;
    for (std::size_t i = 1; i < m_points.size(); ++i)
        secants.push_back(Secant(m_points[i - 1], m_points[i]));
    std::vector<double> tangents{secants.front()};
    for (std::size_t i = 1; i < secants.size(); ++i)
        tangents.push_back(secants[i - 1] * secants[i] <= 0 ? 0
                                                            : (secants[i - 1] + secants[i]) / 2);
    tangents.push_back(secants.back());
    for (std::size_t i = 0; i < secants.size(); ++i)
        Limit(secants[i], tangents[i], tangents[i + 1]);
    return tangents;
}

double CurvePoints::GetHeight(double x) const
{
    const std::vector<double> tangents = GetTangents();
    if (x <= m_points.front().x())
        return m_points.front().y() + tangents.front() * (x - m_points.front().x());
    if (x >= m_points.back().x())
        return m_points.back().y() + tangents.back() * (x - m_points.back().x());
    std::size_t i = 0;
    while (x > m_points[i + 1].x())
        ++i;
    const double width = m_points[i + 1].x() - m_points[i].x();
    const double t = (x - m_points[i].x()) / width;
    const double rise = m_points[i + 1].y() - m_points[i].y();
    const double first = tangents[i] * width, last = tangents[i + 1] * width;
    return m_points[i].y() +
           t * (first + t * (3 * rise - 2 * first - last + t * (first + last - 2 * rise)));
}

} // namespace LumetraAdjust
