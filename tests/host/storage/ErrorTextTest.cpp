// SPDX-License-Identifier: GPL-2.0-or-later
#include "storage/ErrorText.h"

#include <gtest/gtest.h>

#include <stdexcept>

using LumetraHost::ErrorText;

TEST(ErrorText, leavesACallStackOut)
{
    const std::runtime_error error("Grün: expected a number\n 0# here\n 1# there");
    EXPECT_EQ(ErrorText::FirstLine(error), "Grün: expected a number");
    EXPECT_EQ(ErrorText::Show(error), QString::fromUtf8("Grün: expected a number"));
}

TEST(ErrorText, keepsOneLineAndNone)
{
    EXPECT_EQ(ErrorText::FirstLine(std::runtime_error("one")), "one");
    EXPECT_EQ(ErrorText::Show(std::runtime_error("")), QString());
}
