// SPDX-License-Identifier: GPL-2.0-or-later
#include "image/DepthConversion.h"

#include <gtest/gtest.h>

#include <cmath>

namespace LumetraHost {
namespace {

TEST(DepthConversion, spreadsEightBitsAndRoundsThemBack)
{
    Image narrow = Image::Allocate(64, 2, Image::Depth::Bits8);
    for (int i = 0; i < 256; ++i)
        narrow.Row(1)[i] = static_cast<std::uint8_t>(i);
    Image wide = Image::Allocate(64, 3, Image::Depth::Bits16);
    Image back = Image::Allocate(64, 1, Image::Depth::Bits8);

    CopyRows(narrow, 1, wide, 2, 1);
    CopyRows(wide, 2, back, 0, 1);

    for (int i = 0; i < 256; ++i) {
        EXPECT_EQ(wide.Row16(2)[i], i * 257);
        EXPECT_EQ(back.Row(0)[i], i);
    }
}

TEST(DepthConversion, roundsSixteenBitsToTheNearest)
{
    Image wide = Image::Allocate(16384, 1, Image::Depth::Bits16);
    for (int i = 0; i < 65536; ++i)
        wide.Row16(0)[i] = static_cast<std::uint16_t>(i);
    Image narrow = Image::Allocate(16384, 1, Image::Depth::Bits8);

    CopyRows(wide, 0, narrow, 0, 1);

    for (int i = 0; i < 65536; ++i)
        ASSERT_EQ(narrow.Row(0)[i], std::lround(i / 257.0)) << i;
}

} // namespace
} // namespace LumetraHost
