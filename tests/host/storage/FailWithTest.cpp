// SPDX-License-Identifier: GPL-2.0-or-later
#include "storage/FailWith.h"

#include "Zorvik/Exception.h"

#include <gtest/gtest.h>

namespace LumetraHost {
namespace {

TEST(FailWith, throwsTheTextFromThePlaceOfTheCall)
{
    int line = 0;
    try {
        line = __LINE__ + 1;
        FailWith("lake.jpg: expected a photo");
    } catch (const Zorvik::Exception& error) {
        EXPECT_EQ(error.GetDescription(), "lake.jpg: expected a photo");
        EXPECT_EQ(error.GetFunction(), "TestBody");
        EXPECT_EQ(error.GetFile(), "tests/host/storage/FailWithTest.cpp");
        EXPECT_EQ(error.GetLine(), line);
    }
    EXPECT_NE(line, 0);
}

} // namespace
} // namespace LumetraHost
