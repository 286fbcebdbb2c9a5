// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/base/MonotoneCurve.h"

#include <gtest/gtest.h>

namespace LumetraHost {
namespace {

double Evaluate(const MonotoneCurve::Piece& piece, double t)
{
    return piece.start.y + t * (piece.linear + t * (piece.square + t * piece.cube));
}

double GetSlope(const MonotoneCurve::Piece& piece, double t)
{
    return piece.linear + t * (2 * piece.square + 3 * t * piece.cube);
}

TEST(MonotoneCurve, isSmoothAndMeetsItsPoints)
{
    const auto curve = MonotoneCurve::Make({{0, 0}, {1, 3}, {3, 4}, {4, 9}, {5, 9}});
    const auto& pieces = curve.GetPieces();
    ASSERT_EQ(pieces.size(), 4u);
    for (std::size_t i = 0; i + 1 < pieces.size(); ++i) {
        EXPECT_NEAR(Evaluate(pieces[i], pieces[i].width), pieces[i + 1].start.y, 1e-12);
        EXPECT_NEAR(GetSlope(pieces[i], pieces[i].width), pieces[i + 1].linear, 1e-12);
    }
    EXPECT_NEAR(Evaluate(pieces.back(), 1), 9, 1e-12);
}

TEST(MonotoneCurve, neverFallsBetweenRisingPoints)
{
    const auto curve = MonotoneCurve::Make({{0, 0}, {0.1, 0.001}, {0.2, 5}, {3, 5.1}, {4, 5.1}});
    for (const auto& piece : curve.GetPieces())
        for (int i = 0; i <= 1000; ++i)
            ASSERT_GE(GetSlope(piece, piece.width * i / 1000), -1e-9);
}

TEST(MonotoneCurve, isTheStraightLineThroughPointsOnOne)
{
    const auto curve = MonotoneCurve::Make({{0, 1}, {2, 2}, {5, 3.5}});
    for (const auto& piece : curve.GetPieces()) {
        EXPECT_NEAR(piece.linear, 0.5, 1e-12);
        EXPECT_NEAR(piece.square, 0, 1e-12);
        EXPECT_NEAR(piece.cube, 0, 1e-12);
    }
    EXPECT_NEAR(curve.GetSlopeBefore(), 0.5, 1e-12);
    EXPECT_NEAR(curve.GetSlopeAfter(), 0.5, 1e-12);
}

TEST(MonotoneCurve, goesOnWithTheEndSlopeAskedFor)
{
    const auto curve = MonotoneCurve::Make({{0, 0}, {1, 0.1}, {2, 3}}, 1);
    EXPECT_EQ(curve.GetSlopeBefore(), 1);
    EXPECT_EQ(curve.GetSlopeAfter(), 1);
    EXPECT_LE(curve.GetPieces().front().linear, 0.3 + 1e-12);
}

} // namespace
} // namespace LumetraHost
