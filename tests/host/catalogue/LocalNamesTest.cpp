// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/LocalNames.h"

#include "storage/JsonDocument.h"

#include <QLocale>

#include <gtest/gtest.h>

using LumetraHost::JsonDocument;
using LumetraHost::LocalNames;

namespace {

LocalNames Read(const char* node)
{
    return LocalNames::Read(JsonDocument::Parse(node, "a.json").GetRoot());
}

QString FindIn(const LocalNames& names, const QLocale& locale)
{
    QLocale::setDefault(locale);
    const QString found = names.Find();
    QLocale::setDefault(QLocale::c());
    return found;
}

} // namespace

TEST(LocalNames, findsTheNameInTheLanguageAndInTheSameOneOfAnotherCountry)
{
    const LocalNames names = Read(R"({"names": {"de": "Herbst", "pt-BR": "Outono", "fr": "x"}})");
    EXPECT_EQ(names.Find(QStringLiteral("de")), QStringLiteral("Herbst"));
    EXPECT_EQ(names.Find(QStringLiteral("de-AT")), QStringLiteral("Herbst"));
    EXPECT_EQ(names.Find(QStringLiteral("de-Latn-CH")), QStringLiteral("Herbst"));
    EXPECT_EQ(names.Find(QStringLiteral("pt-BR")), QStringLiteral("Outono"));
    EXPECT_EQ(names.Find(QStringLiteral("pt-PT")), QString());
    EXPECT_EQ(names.Find(QStringLiteral("en-US")), QString());
    EXPECT_EQ(names.Find(QString()), QString());
}

TEST(LocalNames, followsTheLanguageOfTheProgram)
{
    const LocalNames names = Read(R"({"names": {"de": "Herbst", "pt-BR": "Outono"}})");
    EXPECT_EQ(FindIn(names, QLocale(QLocale::German)), QStringLiteral("Herbst"));
    EXPECT_EQ(FindIn(names, QLocale(QLocale::German, QLocale::Austria)), QStringLiteral("Herbst"));
    EXPECT_EQ(FindIn(names, QLocale(QLocale::Portuguese, QLocale::Brazil)),
              QStringLiteral("Outono"));
    EXPECT_EQ(FindIn(names, QLocale(QLocale::English)), QString());
    EXPECT_EQ(FindIn(names, QLocale::c()), QString());
}

TEST(LocalNames, passesOverWhatIsNoName)
{
    EXPECT_TRUE(Read("{}").GetAll().empty());
    EXPECT_TRUE(Read(R"({"names": "Herbst"})").GetAll().empty());
    EXPECT_TRUE(Read(R"({"names": {"de": 1, "fr": null}})").GetAll().empty());
}

TEST(LocalNames, knowsLanguagesByTheirForm)
{
    for (const char* language : {"de", "gsw", "pt-BR", "zh-Hant", "zh-Hant-TW", "es-419"})
        EXPECT_TRUE(LocalNames::IsLanguage(language)) << language;
    for (const char* other : {"", "d", "German", "de_DE", "DE", "de-de", "de-", "de-DE-x", "de\n"})
        EXPECT_FALSE(LocalNames::IsLanguage(other)) << other;
}
