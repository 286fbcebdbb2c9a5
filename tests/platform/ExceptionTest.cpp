// SPDX-License-Identifier: MIT
#include "Zorvik/Exception.h"

#include "Zorvik/CallStack.h"

#include <gtest/gtest.h>

#include <algorithm>

using Zorvik::Exception;

TEST(Exception, saysTheDescriptionAloneAndKeepsItsOrigin)
{
    const Exception error("file is broken", "void Read()", "Catalogue/Reader", 17);
    EXPECT_STREQ(error.what(), "file is broken");
    EXPECT_EQ(error.GetDescription(), "file is broken");
    EXPECT_EQ(error.GetFunction(), "void Read()");
    EXPECT_EQ(error.GetFile(), "Catalogue/Reader");
    EXPECT_EQ(error.GetLine(), 17);
}

TEST(Exception, isCaughtAsAStandardException)
{
    try {
        throw Exception("broken", "f", "g", 1);
    } catch (const std::exception& error) {
        EXPECT_STREQ(error.what(), "broken");
        return;
    }
    FAIL() << "not caught";
}

TEST(Exception, survivesCopying)
{
    Exception copy("", "", "", 0);
    {
        const Exception error("broken", "f", "g", 1);
        copy = error;
    }
    EXPECT_STREQ(copy.what(), "broken");
    EXPECT_EQ(copy.GetLine(), 1);
}

TEST(CallStack, hasALineForEveryFrame)
{
    const std::string stack = Zorvik::GetCallStack();
    EXPECT_GE(std::count(stack.begin(), stack.end(), '\n'), 3) << stack;
    EXPECT_NE(stack.find(" 0# "), std::string::npos) << stack;
    EXPECT_NE(stack.find(" 1# "), std::string::npos) << stack;
}
