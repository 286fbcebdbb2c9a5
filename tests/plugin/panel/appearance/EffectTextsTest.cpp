// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/appearance/EffectTexts.h"
#include "Places.h"

#include "Zorvik/Quindle/EffectRegistry.h"
#include "engine/effects/EffectKinds.h"
#include "panel/appearance/PanelTranslation.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QTranslator>

#include <gtest/gtest.h>

#include <set>

using LumetraPlugin::EffectTexts;
using Zorvik::Quindle::EffectRegistry;

namespace {

/// The panel's texts in German.
class EffectTextsTest : public testing::Test
{
protected:
    EffectTextsTest()
    {
        LumetraHost::RegisterEffects();
        Speak(QLocale::German);
    }
    ~EffectTextsTest() override { Speak(QLocale::English); }

    static void Speak(QLocale::Language language)
    {
        QLocale::setDefault(QLocale(language));
        LumetraPlugin::PanelTranslation::Follow();
    }

    /// True when the text is in the German catalogue, even if it is translated by itself.
    static bool IsInCatalogue(const QString& text)
    {
        for (const QTranslator* const translator :
             QCoreApplication::instance()->findChildren<QTranslator*>())
            if (!translator->translate("Effects", text.toUtf8().constData()).isEmpty())
                return true;
        return false;
    }

    /// Makes the text in the language of the sources.
    template <class Text>
    static QString InEnglish(const Text& text)
    {
        Speak(QLocale::English);
        const QString english = text();
        Speak(QLocale::German);
        return english;
    }
};

} // namespace

TEST_F(EffectTextsTest, everyEffectHasAGermanName)
{
    for (const std::string& id : EffectRegistry::GetEffectIDs()) {
        const QString english = InEnglish([&id] { return EffectTexts::GetEffectName(id); });
        EXPECT_NE(english, QString::fromStdString(id)) << id;
        EXPECT_TRUE(IsInCatalogue(english)) << id;
    }
    EXPECT_EQ(EffectTexts::GetEffectName("whiteBalance"), QStringLiteral("Weißabgleich"));
}

TEST_F(EffectTextsTest, everyUnitIsASignOrGerman)
{
    const std::set<std::string> signs{"", "%", "‰", "K", "°"};
    int words = 0;
    for (const std::string& id : EffectRegistry::GetEffectIDs())
        for (const auto& parameter : EffectRegistry::Find(id)->parameters) {
            if (signs.count(parameter.unit) > 0)
                continue;
            ++words;
            EXPECT_TRUE(IsInCatalogue(QString::fromStdString(parameter.unit)))
                << id << '/' << parameter.name << ": " << parameter.unit;
            EXPECT_NE(EffectTexts::Translate(parameter.unit),
                      QString::fromStdString(parameter.unit));
        }
    EXPECT_GT(words, 3);
    EXPECT_EQ(EffectTexts::Translate("stops"), QStringLiteral("Blenden"));
}

TEST_F(EffectTextsTest, everyShippedSliderIsGerman)
{
    QFile file(QStringLiteral(LUMETRA_CATALOGUE));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QJsonObject catalogue = QJsonDocument::fromJson(file.readAll()).object();
    QStringList titles;
    for (const QJsonValue& slider : catalogue.value(QStringLiteral("defaultSettings")).toObject())
        titles.append(slider.toObject().value(QStringLiteral("title")).toString());
    EXPECT_GE(titles.size(), 10);
    for (const QString& title : titles)
        EXPECT_TRUE(IsInCatalogue(title)) << title.toStdString();
}
