// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/engine/ColourDifference.h"

#include <gtest/gtest.h>

namespace LumetraHost {
namespace {

struct Pair
{
    LabColour first;
    LabColour second;
    double difference;
};

// Sharma, Wu, Dalal: The CIEDE2000 Color-Difference Formula: Implementation Notes, Supplementary
// Test Data, and Mathematical Observations, table 1.
const Pair Published[] = {
    {{50, 2.6772, -79.7751}, {50, 0, -82.7485}, 2.0425},
    {{50, 3.1571, -77.2803}, {50, 0, -82.7485}, 2.8615},
    {{50, 2.8361, -74.0200}, {50, 0, -82.7485}, 3.4412},
    {{50, -1.3802, -84.2814}, {50, 0, -82.7485}, 1.0000},
    {{50, 0, 0}, {50, -1, 2}, 2.3669},
    {{50, 2.4900, -0.0010}, {50, -2.4900, 0.0009}, 7.1792},
    {{50, 2.4900, -0.0010}, {50, -2.4900, 0.0011}, 7.2195},
    {{50, 2.5, 0}, {50, 0, -2.5}, 4.3065},
    {{50, 2.5, 0}, {73, 25, -18}, 27.1492},
    {{50, 2.5, 0}, {61, -5, 29}, 22.8977},
    {{50, 2.5, 0}, {56, -27, -3}, 31.9030},
    {{50, 2.5, 0}, {58, 24, 15}, 19.4535},
    {{60.2574, -34.0099, 36.2677}, {60.4626, -34.1751, 39.4387}, 1.2644},
    {{63.0109, -31.0961, -5.8663}, {62.8187, -29.7946, -4.0864}, 1.2630},
    {{22.7233, 20.0904, -46.6940}, {23.0331, 14.9730, -42.5619}, 2.0373},
    {{90.8027, -2.0831, 1.4410}, {91.1528, -1.6435, 0.0447}, 1.4441},
    {{2.0776, 0.0795, -1.1350}, {0.9033, -0.0636, -0.5514}, 0.9082},
};

TEST(ColourDifference, isThatOfThePublishedPairs)
{
    for (const Pair& pair : Published) {
        EXPECT_NEAR(GetColourDifference(pair.first, pair.second), pair.difference, 1e-4);
        EXPECT_NEAR(GetColourDifference(pair.second, pair.first), pair.difference, 1e-4);
    }
}

TEST(ColourDifference, knowsWhiteAndBlack)
{
    EXPECT_NEAR(ToLab({1, 1, 1})[0], 100, 1e-3);
    EXPECT_NEAR(ToLab({0, 0, 0})[0], 0, 1e-3);
}

} // namespace
} // namespace LumetraHost
