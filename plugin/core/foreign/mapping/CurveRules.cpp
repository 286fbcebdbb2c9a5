// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/foreign/ForeignNumber.h"
#include "core/foreign/mapping/LookBuilder.h"
#include "core/foreign/mapping/MappingRules.h"
#include "engine/effects/tonecurve/ToneCurveEffect.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace LumetraPlugin::MappingRules {
namespace {

using LumetraHost::CurvePoint;
using LumetraHost::ToneCurveParameters;
using Points = ToneCurveParameters::Points;
using Numbers = std::vector<double>;

constexpr double LeastDistance = 0.02; // per cent; the tone curve takes closer points for one
constexpr int MostForeignPoints = 256;

/// All numbers of the list; nothing when one of them is none.
std::optional<Numbers> ReadNumbers(const QStringList& items, QChar separator)
{
    Numbers numbers;
    for (const QString& item : items)
        for (const QString& text : item.split(separator)) {
            const auto number = ForeignNumber::Read(text);
            if (!number)
                return std::nullopt;
            numbers.push_back(*number);
        }
    return numbers;
}

/// Points in per cent, x ascending, without doubles. Nothing where the numbers are no curve.
std::optional<Points> MakePoints(const Numbers& numbers, double full)
{
    if (numbers.size() < 4 || numbers.size() % 2 != 0 || numbers.size() > 2 * MostForeignPoints)
        return std::nullopt;
    Points points;
    for (std::size_t i = 0; i < numbers.size(); i += 2)
        points.push_back({std::clamp(numbers[i] / full * 100, 0.0, 100.0),
                          std::clamp(numbers[i + 1] / full * 100, 0.0, 100.0)});
    std::stable_sort(points.begin(), points.end(),
                     [](const CurvePoint& a, const CurvePoint& b) { return a.x < b.x; });
    const auto isDouble = [](const CurvePoint& a, const CurvePoint& b) {
        return b.x - a.x < LeastDistance;
    };
    points.erase(std::unique(points.begin(), points.end(), isDouble), points.end());
    return points.size() < 2 ? std::nullopt : std::optional(points);
}

/// Foreign curves go on level beyond their ends, ours straight on.
void AddEnds(Points& points)
{
    if (points.front().x >= LeastDistance)
        points.insert(points.begin(), {0, points.front().y});
    if (points.back().x <= 100 - LeastDistance)
        points.push_back({100, points.back().y});
}

/// How far the curve would move at this point if the point were not there.
double GetWeight(const Points& points, std::size_t i)
{
    const CurvePoint& a = points[i - 1];
    const CurvePoint& b = points[i + 1];
    const double straight = a.y + (b.y - a.y) * (points[i].x - a.x) / (b.x - a.x);
    return std::abs(points[i].y - straight);
}

/// Takes away the points that matter least. True when there were too many.
bool Thin(Points& points)
{
    const bool isTooMany = points.size() > ToneCurveParameters::MostPoints;
    while (points.size() > ToneCurveParameters::MostPoints) {
        std::size_t least = 1;
        for (std::size_t i = 2; i + 1 < points.size(); ++i)
            if (GetWeight(points, i) < GetWeight(points, least))
                least = i;
        points.erase(points.begin() + static_cast<std::ptrdiff_t>(least));
    }
    return isTooMany;
}

/// The name of a number of one curve: "x0", and "redX0" for a channel's.
std::string NameOf(const std::string& channel, const char* upper, const char* lower)
{
    return channel.empty() ? lower : channel + upper;
}

void SetPoints(const MappingRow& row, const Points& points, LookBuilder& look)
{
    const std::string& channel = row.parameter;
    look.Set(row.step, NameOf(channel, "Points", "points"), static_cast<double>(points.size()));
    for (std::size_t i = 0; i < points.size(); ++i) {
        look.Set(row.step, NameOf(channel, "X", "x") + std::to_string(i), points[i].x);
        look.Set(row.step, NameOf(channel, "Y", "y") + std::to_string(i), points[i].y);
    }
}

void SetAnyPoints(const MappingRow& row, const std::optional<Points>& read, LookBuilder& look)
{
    if (!read)
        return look.LeaveOut(LookBuilder::tr("expected a curve of 2 to 256 points"));
    Points points = *read;
    AddEnds(points);
    if (Thin(points))
        look.TellLimited();
    SetPoints(row, points, look);
}

/// Three splits from 0 to 1, then highlights, lights, darks and shadows in per cent.
void SetParametric(const Numbers& numbers, LookBuilder& look)
{
    static const char* const names[] = {"shadowSplit", "midtoneSplit", "highlightSplit",
                                        "highlights",  "lights",       "darks",
                                        "shadows"};
    if (numbers.size() < 7)
        return look.LeaveOut(LookBuilder::tr("expected seven numbers"));
    for (std::size_t i = 0; i < 7; ++i)
        look.Set(LookStep::ParametricCurve, names[i], i < 3 ? 100 * numbers[i] : numbers[i]);
}

} // namespace

void SetCurve(const MappingRow& row, const ForeignValue& value, LookBuilder& look)
{
    if (!value.isList && value.text.isEmpty())
        return;
    const auto numbers = ReadNumbers(value.items, QLatin1Char(','));
    SetAnyPoints(row, numbers ? MakePoints(*numbers, 255) : std::nullopt, look);
}

void SetTypedCurve(const MappingRow& row, const ForeignValue& value, LookBuilder& look)
{
    QString text = value.text.trimmed();
    while (text.endsWith(QLatin1Char(';')))
        text.chop(1);
    const auto numbers = ReadNumbers({text}, QLatin1Char(';'));
    if (!numbers)
        return look.LeaveOut(LookBuilder::tr("expected numbers"));
    const Numbers rest(numbers->begin() + 1, numbers->end());
    const int kind = static_cast<int>(std::clamp(numbers->front(), -1.0, 9.0));
    switch (kind) {
    case 0: // none
        return;
    case 1: // through points, by two ways
    case 4:
        return SetAnyPoints(row, MakePoints(rest, 1), look);
    case 2:
        if (row.parameter.empty())
            return SetParametric(rest, look);
        return look.LeaveOut(LookBuilder::tr("expected a curve of points"));
    case 3: // near points
        look.TellLimited();
        return SetAnyPoints(row, MakePoints(rest, 1), look);
    default:
        look.LeaveOut(LookBuilder::tr("expected a curve of kind 0 to 4"));
    }
}

} // namespace LumetraPlugin::MappingRules
