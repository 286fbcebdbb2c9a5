// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/base/ColourMatrix.h"

#include <gtest/gtest.h>

#include <cstddef>

namespace LumetraHost {
namespace {

TEST(ColourMatrix, invertsItself)
{
    const ColourMatrix matrix = {{{{2, 1, 0}, {0.5, -1, 3}, {1, 0, 1}}}};
    const ColourMatrix product = matrix * matrix.Inverse();
    for (std::size_t i = 0; i < 3; ++i)
        for (std::size_t j = 0; j < 3; ++j)
            EXPECT_NEAR(product.rows[i][j], i == j ? 1 : 0, 1e-12);
}

} // namespace
} // namespace LumetraHost
