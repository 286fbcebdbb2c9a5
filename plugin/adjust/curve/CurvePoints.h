// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "adjust/edit/Adjustments.h"

#include <QPointF>

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace LumetraAdjust {

/// The points of one tone curve, as a user moves them: in per cent, x ascending, with a least
/// distance between neighbours. There are always at least two; a curve along the diagonal is none.
class CurvePoints
{
public:
    static constexpr char EffectID[] = "toneCurve";
    static constexpr int MostPoints = 16;
    static constexpr int Channels = 4; ///< all together, red, green, blue
    static constexpr double LeastDistance = 1;

    /// The diagonal from black to white.
    CurvePoints();
    /// The curve of a channel, from 0; the diagonal where it has none.
    static CurvePoints Read(const Adjustments& adjustments, int channel);
    /// The numbers of the effect for this curve; all 0 for the diagonal.
    Adjustments::Values Write(int channel) const;

    const std::vector<QPointF>& Get() const { return m_points; }
    int Count() const { return static_cast<int>(m_points.size()); }
    bool IsDiagonal() const;

    /// Adds a point between its neighbours. Returns its position; nothing where there are too many
    /// points, or where another one is too near.
    std::optional<int> Add(const QPointF& point);
    /// Moves a point as far as its neighbours and the square let it.
    void Move(int position, const QPointF& to);
    /// False, with nothing changed, for one of the last two points.
    bool Remove(int position);

    /// The height of the curve at x: monotone cubics between the points, straight lines beyond
    /// them, as the tone curve is drawn on the photo.
    double GetHeight(double x) const;

private:
    std::vector<double> GetTangents() const;

    std::vector<QPointF> m_points;
};

} // namespace LumetraAdjust
