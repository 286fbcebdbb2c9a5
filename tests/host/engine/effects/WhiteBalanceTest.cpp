// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/Reference.h"
#include "host/engine/TestPictures.h"

#include "engine/effects/whitebalance/WhiteBalanceEffect.h"

#include <gtest/gtest.h>

namespace LumetraHost {
namespace {

Colour BalanceGrey(double temperature, double tint)
{
    WhiteBalanceParameters parameters;
    parameters.temperature = temperature;
    parameters.tint = tint;
    return parameters.GetMatrix().Transform({0.5, 0.5, 0.5});
}

// Worked out once with 40 digits from the published formulas.
TEST(WhiteBalanceEffect, hasTheMatrixOfTheFormulas)
{
    WhiteBalanceParameters parameters;
    parameters.temperature = 4000;
    parameters.tint = 30;

    const auto rows = parameters.GetMatrix().rows;

    const double expected[3][3] = {{0.8705767047775, -0.1265757668358, -0.05322941192479},
                                   {0.005488841547729, 0.981628930104, -0.02531106590644},
                                   {0.02738134399475, 0.1072497548052, 2.154258341918}};
    for (std::size_t i = 0; i < 3; ++i)
        for (std::size_t j = 0; j < 3; ++j)
            EXPECT_NEAR(rows[i][j], expected[i][j], 1e-9) << i << ", " << j;
}

TEST(WhiteBalanceEffect, changesNothingAtNeutral)
{
    EXPECT_TRUE(WhiteBalanceParameters().IsIdentity());
    const auto rows = WhiteBalanceParameters().GetMatrix().rows;
    for (std::size_t i = 0; i < 3; ++i)
        for (std::size_t j = 0; j < 3; ++j)
            EXPECT_NEAR(rows[i][j], i == j ? 1 : 0, 1e-12);
}

TEST(WhiteBalanceEffect, warmsWithHigherAndCoolsWithLowerTemperature)
{
    const Colour warm = BalanceGrey(9000, 0);
    EXPECT_GT(warm[0], 0.52);
    EXPECT_LT(warm[2], 0.48);
    const Colour cool = BalanceGrey(4500, 0);
    EXPECT_LT(cool[0], 0.48);
    EXPECT_GT(cool[2], 0.52);
}

TEST(WhiteBalanceEffect, movesBetweenGreenAndMagentaWithTheTint)
{
    const Colour magenta = BalanceGrey(6500, 60);
    EXPECT_LT(magenta[1], magenta[0]);
    EXPECT_LT(magenta[1], magenta[2]);
    const Colour green = BalanceGrey(6500, -60);
    EXPECT_GT(green[1], green[0]);
    EXPECT_GT(green[1], green[2]);
}

TEST(WhiteBalanceEffect, keepsTheLuminanceOfGrey)
{
    for (const double temperature : {2000.0, 3200.0, 6500.0, 15000.0})
        for (const double tint : {-150.0, 0.0, 150.0}) {
            const Colour c = BalanceGrey(temperature, tint);
            EXPECT_NEAR(0.2126 * c[0] + 0.7152 * c[1] + 0.0722 * c[2], 0.5, 1e-12)
                << temperature << " K, " << tint;
        }
}

TEST(WhiteBalanceEffect, rendersItsMatrix)
{
    WhiteBalanceParameters parameters;
    parameters.temperature = 4800;
    parameters.tint = -12;
    const auto matrix = parameters.GetMatrix();
    ExpectFormula(
        MakeSettings({MakeEffect("whiteBalance", {{"temperature", 4800}, {"tint", -12}})}),
        [&matrix](const Colour& c, int, int) { return matrix.Transform(c); });
}

} // namespace
} // namespace LumetraHost
