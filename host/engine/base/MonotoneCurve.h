// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <vector>

namespace LumetraHost {

struct CurvePoint
{
    double x = 0;
    double y = 0;
};

/// A curve through points that rises where they rise and never swings beyond them: piecewise cubic
/// with the tangents of F. N. Fritsch and R. E. Carlson, "Monotone Piecewise Cubic Interpolation",
/// SIAM Journal on Numerical Analysis 17 (1980). Before the first point and after the last one it
/// goes on as a straight line.
class MonotoneCurve
{
public:
    /// One piece: y = start.y + t * (linear + t * (square + t * cube)) with t = x - start.x from 0
    /// to `width`.
    struct Piece
    {
        CurvePoint start;
        double width = 0;
        double linear = 0;
        double square = 0;
        double cube = 0;
    };

    /// At least two points, x ascending. The slope at both ends is that of the outer pieces'
    /// secants.
    static MonotoneCurve Make(const std::vector<CurvePoint>& points);
    /// Asks for `endSlope` at both ends; the curve has less there where that would overshoot. The
    /// straight lines beyond the ends have it in any case.
    static MonotoneCurve Make(const std::vector<CurvePoint>& points, double endSlope);

    const std::vector<Piece>& GetPieces() const { return m_pieces; }
    double GetSlopeBefore() const { return m_slopeBefore; }
    double GetSlopeAfter() const { return m_slopeAfter; }

private:
    static MonotoneCurve Make(const std::vector<CurvePoint>& points, double first, double last);

    std::vector<Piece> m_pieces;
    double m_slopeBefore = 1;
    double m_slopeAfter = 1;
};

} // namespace LumetraHost
