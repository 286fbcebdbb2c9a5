// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/NearestName.h"

#include <gtest/gtest.h>

using namespace LumetraHost;

TEST(NearestName, findsTheNameThatWasMeant)
{
    const std::vector<std::string> names = {"Soft Skin", "Soft Light", "Noir"};

    EXPECT_EQ(NearestName("soft skim", names), "Soft Skin");
    EXPECT_EQ(NearestName("noire", names), "Noir");
    EXPECT_EQ(NearestName("SoftLight", names), "Soft Light");
    EXPECT_EQ(DidYouMean("noire", names), ", did you mean \"Noir\"?");
}

TEST(NearestName, findsNothingFarAway)
{
    EXPECT_EQ(NearestName("Sepia", {"Noir", "Soft Skin"}), "");
    EXPECT_EQ(NearestName("", {"a"}), "");
    EXPECT_EQ(NearestName("a", {}), "");
    EXPECT_EQ(NearestName(std::string(1000, 'a'), {std::string(1000, 'a')}), "");
    EXPECT_EQ(DidYouMean("Sepia", {"Noir"}), "");
}
