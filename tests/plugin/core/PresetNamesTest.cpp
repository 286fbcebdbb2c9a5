// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/PresetNames.h"

#include <gtest/gtest.h>

using LumetraPlugin::PresetNames;

TEST(PresetNames, keepsANameThatIsFreeWithoutTheSpacesAroundIt)
{
    EXPECT_EQ(PresetNames::MakeFree(QStringLiteral(" Warm "), {QStringLiteral("Cold")}),
              QStringLiteral("Warm"));
}

TEST(PresetNames, numbersANameUntilItIsFree)
{
    const QStringList taken = {QStringLiteral("Warm"), QStringLiteral("Warm 2")};
    EXPECT_EQ(PresetNames::MakeFree(QStringLiteral("Warm"), taken), QStringLiteral("Warm 3"));
}

TEST(PresetNames, shortensANameSoThatItsNumberFits)
{
    const QString longName(60, QLatin1Char('x'));
    const QString first = PresetNames::MakeFree(longName, {});
    EXPECT_EQ(first, QString(PresetNames::MaxLength, QLatin1Char('x')));
    const QString second = PresetNames::MakeFree(longName, {first});
    EXPECT_EQ(second, QString(PresetNames::MaxLength - 2, QLatin1Char('x')) + QStringLiteral(" 2"));
}

TEST(PresetNames, cutsNoCharacterInHalf)
{
    const QString face = QString::fromUtf8("\xF0\x9F\x98\x80");
    const QString name = QString(PresetNames::MaxLength - 1, QLatin1Char('x')) + face;
    EXPECT_EQ(PresetNames::MakeFree(name, {}),
              QString(PresetNames::MaxLength - 1, QLatin1Char('x')));
}

TEST(PresetNames, haveNoControlCharacters)
{
    EXPECT_EQ(PresetNames::FindFault(QStringLiteral(" Soft Light ")), QString());
    EXPECT_EQ(PresetNames::FindFault(QStringLiteral("a\x1b[1m")),
              QStringLiteral("expected a name without control characters, found \"a\\x1b[1m\""));
    EXPECT_EQ(PresetNames::FindFault(QStringLiteral("  ")),
              QStringLiteral("expected 1 to 50 characters, found 0"));
    EXPECT_EQ(PresetNames::MakeFree(QStringLiteral("a\x1b[1m\n"), {}), QStringLiteral("a [1m"));
}
